"Pass"," <- Heading for General Analysis columns"
"F","0"
"P","50"

"Level"," <- Heading for General Analysis columns"
"F","0"
"D-","50"
"D","60"

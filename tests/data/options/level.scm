"Level"," <- Heading for General Analysis columns"
"R","0"
"1","50"
"2","60"

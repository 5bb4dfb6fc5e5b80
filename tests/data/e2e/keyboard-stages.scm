"Stage"," <- Heading for General Analysis columns"
"N","0"
"P","50"
"M","75"

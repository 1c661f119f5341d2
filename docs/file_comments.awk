# For Doxygen: the comment that a header opens with describes the file.
NR == 1 && /^\/\*/ { sub(/^\/\*/, "/** @file\n *"); }
NR == 1 && /^\/\// { opening = 1; print "/// @file"; }
opening && /^\/\// { sub(/^\/\//, "///"); }
!/^\/\// { opening = 0; }
{ print }

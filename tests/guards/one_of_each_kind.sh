#!/usr/bin/env bash
# Of the paths on standard input: those written by hand, and of those made from templates one family of each
# kind of element, since the others differ by a word.
kinds='ZEB_(Byte|Object|String)_(Algorithms|Array|Collection|Enumeration|Span|Statistics|Total_Order|Checked_Access|Vector|Binary_Contents|Coding|NSArray_Conversion|NSData_Conversion|Reversal)\.'
awk -v kinds="/generated/.*/$kinds" '!/\/generated\// || $0 ~ kinds'

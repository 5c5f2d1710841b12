/// `zeb::elements(array)` for every vector and array class: the elements as a std::span, so that loops,
/// ranges and standard algorithms need no message per element. For users of C++20.
#pragma once

#include <Korvane_ZEB/ZEB_Byte_Array_Span.hpp>
#include <Korvane_ZEB/ZEB_Byte_Span.hpp>
#include <Korvane_ZEB/ZEB_Char_Span.hpp>
#include <Korvane_ZEB/ZEB_Double_Span.hpp>
#include <Korvane_ZEB/ZEB_Float_Span.hpp>
#include <Korvane_ZEB/ZEB_Int_Span.hpp>
#include <Korvane_ZEB/ZEB_Object_Span.hpp>
#include <Korvane_ZEB/ZEB_Pointer_Span.hpp>
#include <Korvane_ZEB/ZEB_String_Span.hpp>
#include <Korvane_ZEB/ZEB_UInt_Span.hpp>
#include <Korvane_ZEB/ZEB_Wide_Char_Span.hpp>
#include <Korvane_ZEB/ZEB_Wide_String_Span.hpp>

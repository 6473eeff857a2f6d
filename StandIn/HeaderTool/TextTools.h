// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace HeaderTool
{

/** Returns the pattern with $0, $1, ... $9 replaced by the values. */
std::string Fill(std::string_view Pattern, std::initializer_list<std::string_view> Values);

/** Returns the text as a C++ string literal in quotes; control characters and everything beyond ASCII as \x escapes. */
std::string ToLiteral(std::string_view Text);

/** Returns the value as lower-case-x, upper-case-digit hexadecimal with at least the given number of digits, "0x000000A4". */
std::string ToHex(std::uint64_t Value, int Digits);

/** Returns the CRC-32 of the text. */
std::uint32_t Crc32(std::string_view Text);

/** Returns the text with ASCII letters in lower case. */
std::string ToLower(std::string_view Text);

/** Returns the text with ASCII letters in upper case. */
std::string ToUpper(std::string_view Text);

/** Tells whether two texts are the same but for the case of ASCII letters. */
bool EqualsIgnoreCase(std::string_view A, std::string_view B);

/** Returns the text with everything that cannot stand in an identifier replaced by an underscore. */
std::string ToIdentifier(std::string_view Text);

/** Returns the lines of the text without their line ends. */
std::vector<std::string> SplitLines(std::string_view Text);

}

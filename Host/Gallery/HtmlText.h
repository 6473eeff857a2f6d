// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <string_view>

// Text and pictures as they stand in a page.

namespace TintmillHost
{
/** UTF-8 text for HTML, inside of elements and of attributes in double quotation marks; control characters and bytes that are no UTF-8 become U+FFFD. */
std::string EscapeHtml(std::string_view Text);

/** Bytes in base 64. */
std::string EncodeBase64(std::string_view Bytes);

/** A time as people read it: "0.4 ms", "27 ms", "1.32 s". */
std::string DescribeSeconds(double Seconds);
}

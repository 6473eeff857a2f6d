// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/Packing.h"

#include <iomanip>
#include <limits>

namespace TintmillHost
{
namespace
{
/** No text is longer; a length beyond it means that the stream holds something else. */
constexpr size_t MaxTextLength = size_t(1) << 30;
}

void PackText(std::ostream& Stream, const std::string& Text)
{
	Stream << Text.size() << ' ' << Text << '\n';
}

void PackNumber(std::ostream& Stream, double Number)
{
	Stream << std::setprecision(std::numeric_limits<double>::max_digits10) << Number << '\n';
}

std::string UnpackText(std::istream& Stream)
{
	size_t Length = 0;
	Stream >> Length;
	if (!Stream || Stream.get() != ' ' || Length > MaxTextLength)
	{
		Stream.setstate(std::ios::failbit);
		return {};
	}
	std::string Text(Length, '\0');
	Stream.read(Text.data(), static_cast<std::streamsize>(Length));
	return Text;
}

double UnpackNumber(std::istream& Stream)
{
	double Number = 0.0;
	Stream >> Number;
	return Number;
}
}

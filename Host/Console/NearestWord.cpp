// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/NearestWord.h"

#include <algorithm>
#include <cctype>

namespace TintmillHost
{
namespace
{
/** One wrong letter in so many is still a typing error. */
constexpr size_t LettersATypo = 3;

std::string LowerCase(std::string Word)
{
	std::transform(Word.begin(), Word.end(), Word.begin(), [](unsigned char Letter) { return static_cast<char>(std::tolower(Letter)); });
	return Word;
}
}

size_t CountTypos(const std::string& Word, const std::string& Other)
{
	// Row by row of the table of costs: before last, last, and this one.
	std::vector<size_t> BeforeLast(Other.size() + 1);
	std::vector<size_t> Last(Other.size() + 1);
	std::vector<size_t> Row(Other.size() + 1);
	for (size_t Column = 0; Column <= Other.size(); ++Column)
	{
		Row[Column] = Column;
	}
	for (size_t Index = 1; Index <= Word.size(); ++Index)
	{
		std::swap(BeforeLast, Last);
		std::swap(Last, Row);
		Row[0] = Index;
		for (size_t Column = 1; Column <= Other.size(); ++Column)
		{
			const size_t Changed = Last[Column - 1] + (Word[Index - 1] == Other[Column - 1] ? 0 : 1);
			Row[Column] = std::min({Last[Column] + 1, Row[Column - 1] + 1, Changed});
			const bool bSwapped = Index > 1 && Column > 1 && Word[Index - 1] == Other[Column - 2] && Word[Index - 2] == Other[Column - 1];
			if (bSwapped)
			{
				Row[Column] = std::min(Row[Column], BeforeLast[Column - 2] + 1);
			}
		}
	}
	return Row.back();
}

std::string FindNearestWord(const std::string& Word, const std::vector<std::string>& KnownWords)
{
	std::string Nearest;
	size_t FewestTypos = 1 + Word.size() / LettersATypo;
	const std::string Lowered = LowerCase(Word);
	for (const std::string& Known : KnownWords)
	{
		const size_t Typos = CountTypos(Lowered, LowerCase(Known));
		if (Typos < FewestTypos || (Typos == FewestTypos && Nearest.empty()))
		{
			FewestTypos = Typos;
			Nearest = Known;
		}
	}
	return Nearest;
}
}

// Copyright The Tintmill authors. All rights reserved.
#include "MetaData.h"
#include "TextTools.h"

#include <algorithm>
#include <cctype>

namespace HeaderTool
{

namespace
{

bool HasWords(const std::string& Text)
{
	return std::any_of(Text.begin(), Text.end(),
		[](char Letter) { return std::isalnum(static_cast<unsigned char>(Letter)) != 0 || static_cast<unsigned char>(Letter) >= 0x80; });
}

void RemoveAll(std::string& Text, const std::string& What)
{
	std::string Result;
	std::size_t Start = 0;
	for (std::size_t At = Text.find(What); At != std::string::npos; At = Text.find(What, Start))
	{
		Result.append(Text, Start, At - Start);
		Start = At + What.size();
	}
	Text = Result.append(Text, Start, std::string::npos);
}

/** Tabs reach to the next multiple of eight columns. */
std::string ExpandTabs(const std::string& Line)
{
	std::string Result;
	for (const char Letter : Line)
	{
		if (Letter == '\t')
		{
			Result.append(8 - Result.size() % 8, ' ');
		}
		else
		{
			Result += Letter;
		}
	}
	return Result;
}

/** Removes a leading star, or the second star of the opening marker, together with the blank behind it. */
void RemoveLeadingStar(std::string& Line)
{
	const std::size_t First = Line.find_first_not_of(' ');
	if (First != std::string::npos && Line[First] == '*')
	{
		const bool bBlank = First + 1 < Line.size() && Line[First + 1] == ' ';
		Line.erase(0, First + (bBlank ? 2 : 1));
	}
}

/** An empty line, or one that only rules off: nothing but dashes, equal signs or stars. */
bool IsEmptyOrRuler(const std::string& Line)
{
	const std::size_t First = Line.find_first_not_of(' ');
	if (First == std::string::npos)
	{
		return true;
	}
	const char Letter = Line[First];
	return (Letter == '-' || Letter == '=' || Letter == '*') && Line.find_first_not_of(Letter, First) == std::string::npos;
}

}

std::string CommentToToolTip(const std::string& RawComment)
{
	if (!HasWords(RawComment))
	{
		return "";
	}
	std::string Text = RawComment;
	const bool bDocBlock = Text.find("/**") != std::string::npos;
	// Of the doc marker one star stays, so that its line is treated like the star lines below it.
	RemoveAll(Text, "/*");
	RemoveAll(Text, "*/");
	if (RawComment.compare(0, 2, "//") == 0)
	{
		RemoveAll(Text, "///");
		RemoveAll(Text, "//");
	}

	std::vector<std::string> Lines = SplitLines(Text);
	for (std::string& Line : Lines)
	{
		Line = ExpandTabs(Line);
		if (bDocBlock)
		{
			RemoveLeadingStar(Line);
		}
		Line.erase(Line.find_last_not_of(' ') + 1);
	}
	while (!Lines.empty() && IsEmptyOrRuler(Lines.back()))
	{
		Lines.pop_back();
	}
	Lines.erase(Lines.begin(), std::find_if_not(Lines.begin(), Lines.end(), IsEmptyOrRuler));

	std::size_t Indent = std::string::npos;
	for (const std::string& Line : Lines)
	{
		Indent = std::min(Indent, Line.find_first_not_of(' '));
	}
	std::string Result;
	for (std::size_t Index = 0; Index < Lines.size(); ++Index)
	{
		Result += (Index > 0 ? "\n" : "") + (Lines[Index].size() > Indent ? Lines[Index].substr(Indent) : "");
	}
	return Result;
}

}

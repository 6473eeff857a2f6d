// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <cctype>
#include <string>
#include <vector>

/** Says what is not well-formed in a page, "" if all is: tags that nest, attributes in quotation marks, no bare "<" or "&". */
inline std::string FindMarkupProblem(const std::string& Page)
{
	std::vector<std::string> Open;
	for (size_t Index = 0; Index < Page.size();)
	{
		if (Page[Index] == '&')
		{
			const size_t End = Page.find(';', Index);
			if (End == std::string::npos || End - Index > 8)
			{
				return "a bare & before " + Page.substr(Index, 40);
			}
			Index = End;
		}
		if (Page[Index] != '<')
		{
			++Index;
			continue;
		}
		// The tag ends at the first > outside of quotation marks.
		size_t End = Index + 1;
		for (bool bQuoted = false; End < Page.size() && (bQuoted || Page[End] != '>'); ++End)
		{
			bQuoted = bQuoted != (Page[End] == '"');
			if (bQuoted && Page[End] == '<')
			{
				return "a bare < in an attribute: " + Page.substr(Index, 80);
			}
		}
		const std::string Tag = Page.substr(Index + 1, End - Index - 1);
		Index = End + 1;
		if (Tag.rfind("!DOCTYPE", 0) == 0)
		{
			continue;
		}
		if (Tag.empty() || (!std::isalpha(static_cast<unsigned char>(Tag[0])) && Tag[0] != '/'))
		{
			return "a bare < before " + Tag.substr(0, 40);
		}
		if (Tag[0] == '/')
		{
			if (Open.empty() || Open.back() != Tag.substr(1))
			{
				return "</" + Tag.substr(1) + "> closes " + (Open.empty() ? "nothing" : "<" + Open.back() + ">");
			}
			Open.pop_back();
			continue;
		}
		// Between attributes there is nothing but blanks; each is name="value".
		const size_t NameEnd = Tag.find_first_of(" /");
		size_t At = NameEnd == std::string::npos ? Tag.size() : NameEnd;
		while ((At = Tag.find_first_not_of(' ', At)) != std::string::npos && Tag[At] != '/')
		{
			const size_t Equals = Tag.find("=\"", At);
			const size_t Close = Equals == std::string::npos ? Equals : Tag.find('"', Equals + 2);
			if (Close == std::string::npos || Tag.substr(At, Equals - At).find(' ') != std::string::npos)
			{
				return "an attribute without quotation marks in <" + Tag.substr(0, 80) + ">";
			}
			At = Close + 1;
		}
		if (Tag.back() != '/')
		{
			Open.push_back(Tag.substr(0, NameEnd));
		}
	}
	return Open.empty() ? "" : "<" + Open.back() + "> is never closed";
}

// Copyright The Tintmill authors. All rights reserved.
#include "Tokenizer.h"

#include <algorithm>
#include <cctype>

namespace HeaderTool
{

bool FTokenizer::IsWordStart(char Letter)
{
	return std::isalpha(static_cast<unsigned char>(Letter)) != 0 || Letter == '_' || static_cast<unsigned char>(Letter) >= 0x80;
}

bool FTokenizer::IsWordPart(char Letter)
{
	return IsWordStart(Letter) || std::isdigit(static_cast<unsigned char>(Letter)) != 0;
}

FToken FTokenizer::ReadString()
{
	std::string Result;
	++At;
	while (!AtEnd() && Peek() != '"' && Peek() != '\n')
	{
		if (Peek() == '\\' && At + 1 < Text.size() && Peek(1) != '\n')
		{
			++At;
			Result += Peek() == 'n' ? '\n' : Peek() == 't' ? '\t' : Peek();
		}
		else
		{
			Result += Peek();
		}
		++At;
	}
	if (Peek() != '"')
	{
		return Make(ETokenKind::Bad, "Unterminated quoted string", Line);
	}
	++At;
	return Make(ETokenKind::String, Result, Line);
}

FToken FTokenizer::ReadRawString()
{
	const int StartLine = Line;
	++At;
	// A delimiter has sixteen characters at most.
	const std::size_t Length = Text.substr(At, 17).find('(');
	const std::size_t Open = At + Length;
	if (Length == std::string::npos)
	{
		return Make(ETokenKind::Bad, "Unterminated quoted string", StartLine);
	}
	const std::string Closing = ")" + Text.substr(At, Open - At) + "\"";
	const std::size_t Close = Text.find(Closing, Open);
	if (Close == std::string::npos)
	{
		At = Text.size();
		return Make(ETokenKind::Bad, "Unterminated quoted string", StartLine);
	}
	const std::string Content = Text.substr(Open + 1, Close - Open - 1);
	Line += static_cast<int>(std::count(Content.begin(), Content.end(), '\n'));
	At = Close + Closing.size();
	return Make(ETokenKind::String, Content, StartLine);
}

FToken FTokenizer::ReadCharacter()
{
	const std::size_t Start = At;
	++At;
	while (!AtEnd() && Peek() != '\'' && Peek() != '\n')
	{
		At += Peek() == '\\' && Peek(1) != '\n' && At + 1 < Text.size() ? 2 : 1;
	}
	if (Peek() != '\'')
	{
		return Make(ETokenKind::Bad, "Unterminated character constant", Line);
	}
	++At;
	return Make(ETokenKind::Character, Text.substr(Start, At - Start), Line);
}

FToken FTokenizer::ReadNumber()
{
	const std::size_t Start = At;
	while (IsWordPart(Peek()) || Peek() == '.' || (Peek() == '\'' && IsWordPart(Peek(1))))
	{
		const bool bExponent = Peek() == 'e' || Peek() == 'E' || Peek() == 'p' || Peek() == 'P';
		++At;
		if (bExponent && (Peek() == '+' || Peek() == '-') && std::isdigit(static_cast<unsigned char>(Peek(1))) != 0)
		{
			++At;
		}
	}
	return Make(ETokenKind::Number, Text.substr(Start, At - Start), Line);
}

}

// Copyright The Tintmill authors. All rights reserved.
#include "Tokenizer.h"

#include <algorithm>
#include <cctype>

namespace HeaderTool
{

namespace
{

const char* const OpenComment = "End of class header encountered inside comment";

bool IsBlank(char Letter)
{
	return Letter == ' ' || Letter == '\t' || Letter == '\n' || Letter == '\v' || Letter == '\f';
}

}

FTokenizer::FTokenizer(const std::string& InText)
	: Text(InText)
{
	if (Text.compare(0, 3, "\xEF\xBB\xBF") == 0)
	{
		Text.erase(0, 3);
	}
	Text.erase(std::remove(Text.begin(), Text.end(), '\r'), Text.end());
}

std::vector<FToken> FTokenizer::Tokenize()
{
	std::vector<FToken> Tokens;
	while (true)
	{
		int OpenLine = 0;
		Comment.clear();
		if (!SkipSpaceAndComments(OpenLine))
		{
			Tokens.push_back(Make(ETokenKind::Bad, OpenComment, OpenLine));
		}
		const std::string TokenComment = Comment;
		if (AtEnd())
		{
			Tokens.push_back(Make(ETokenKind::End, "", Line));
			return Tokens;
		}
		Tokens.push_back(ReadToken());
		Tokens.back().Comment = TokenComment;
		bLineStart = Tokens.back().Kind == ETokenKind::Directive;
	}
}

void FTokenizer::Advance()
{
	if (Text[At] == '\n')
	{
		++Line;
		bLineStart = true;
	}
	++At;
}

/** Returns false, and the line, for a comment that never ends. */
bool FTokenizer::SkipSpaceAndComments(int& OutOpenLine)
{
	bool bBlankLine = false;
	while (!AtEnd())
	{
		if (Peek() == '\\' && Peek(1) == '\n')
		{
			++At;
			++At;
			++Line;
		}
		else if (IsBlank(Peek()))
		{
			bBlankLine = bBlankLine || Peek() == '\n';
			Advance();
		}
		else if (Peek() == '/' && Peek(1) == '*')
		{
			Comment.clear();
			bBlankLine = false;
			OutOpenLine = Line;
			if (!ReadBlockComment())
			{
				return false;
			}
		}
		else if (Peek() == '/' && Peek(1) == '/')
		{
			// Only an empty line behind another line comment parts the two; a block comment before stays.
			if (bBlankLine && Comment.size() > 1 && Comment.back() == '\n')
			{
				Comment.clear();
			}
			ReadLineComment();
			bBlankLine = false;
		}
		else
		{
			break;
		}
	}
	return true;
}

bool FTokenizer::ReadBlockComment()
{
	const std::size_t Start = At;
	At += 2;
	while (!AtEnd() && !(Peek() == '*' && Peek(1) == '/'))
	{
		const bool bKeep = bLineStart;
		Advance();
		bLineStart = bKeep;
	}
	if (AtEnd())
	{
		return false;
	}
	At += 2;
	Comment.append(Text, Start, At - Start);
	return true;
}

void FTokenizer::ReadLineComment()
{
	const std::size_t End = std::min(Text.find('\n', At), Text.size());
	Comment.append(Text, At, End - At);
	Comment += '\n';
	At = End;
	if (!AtEnd())
	{
		Advance();
	}
}

FToken FTokenizer::Make(ETokenKind Kind, const std::string& TokenText, int TokenLine) const
{
	FToken Token;
	Token.Kind = Kind;
	Token.Text = TokenText;
	Token.Line = TokenLine;
	return Token;
}

FToken FTokenizer::ReadToken()
{
	const char First = Peek();
	if (First == '#' && bLineStart)
	{
		return ReadDirective();
	}
	bLineStart = false;
	if (IsWordStart(First))
	{
		const std::size_t Start = At;
		while (IsWordPart(Peek()))
		{
			++At;
		}
		const std::string Word = Text.substr(Start, At - Start);
		const bool bPrefix = Word == "u8" || Word == "u" || Word == "U" || Word == "L";
		if (Peek() == '"' && (Word == "R" || Word == "u8R" || Word == "uR" || Word == "UR" || Word == "LR"))
		{
			return ReadRawString();
		}
		if (bPrefix && Peek() == '"')
		{
			return ReadString();
		}
		if (bPrefix && Peek() == '\'')
		{
			return ReadCharacter();
		}
		return Make(ETokenKind::Identifier, Word, Line);
	}
	const bool bFraction = First == '.' && std::isdigit(static_cast<unsigned char>(Peek(1))) != 0;
	if (std::isdigit(static_cast<unsigned char>(First)) != 0 || bFraction)
	{
		return ReadNumber();
	}
	if (First == '"')
	{
		return ReadString();
	}
	if (First == '\'')
	{
		return ReadCharacter();
	}
	const std::size_t Length = First == ':' && Peek(1) == ':' ? 2 : 1;
	At += Length;
	return Make(ETokenKind::Symbol, Text.substr(At - Length, Length), Line);
}

FToken FTokenizer::ReadDirective()
{
	const int StartLine = Line;
	std::string Result;
	++At;
	while (!AtEnd() && Peek() != '\n')
	{
		if (Peek() == '\\' && Peek(1) == '\n')
		{
			++At;
			Advance();
			Result += ' ';
		}
		else if (Peek() == '/' && Peek(1) == '*')
		{
			if (!ReadBlockComment())
			{
				return Make(ETokenKind::Bad, OpenComment, StartLine);
			}
			Result += ' ';
		}
		else if (Peek() == '/' && Peek(1) == '/')
		{
			At = std::min(Text.find('\n', At), Text.size());
		}
		else
		{
			Result += Peek();
			++At;
		}
	}
	return Make(ETokenKind::Directive, Result, StartLine);
}

}

// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Token.h"

#include <string>
#include <vector>

namespace HeaderTool
{

/** Cuts the text of a header into tokens; never fails, what cannot be read becomes a Bad token. */
class FTokenizer
{
public:
	/** Takes the whole text; carriage returns and a leading byte order mark are dropped. */
	explicit FTokenizer(const std::string& InText);

	/** Returns all tokens; the last one is End. */
	std::vector<FToken> Tokenize();

private:
	char Peek(std::size_t Ahead = 0) const { return At + Ahead < Text.size() ? Text[At + Ahead] : '\0'; }
	bool AtEnd() const { return At >= Text.size(); }
	void Advance();
	bool SkipSpaceAndComments(int& OutOpenLine);
	bool ReadBlockComment();
	void ReadLineComment();
	FToken ReadToken();
	FToken ReadDirective();
	FToken ReadString();
	FToken ReadRawString();
	FToken ReadCharacter();
	FToken ReadNumber();
	static bool IsWordStart(char Letter);
	static bool IsWordPart(char Letter);
	FToken Make(ETokenKind Kind, const std::string& TokenText, int TokenLine) const;

	std::string Text;
	std::size_t At = 0;
	int Line = 1;
	bool bLineStart = true;
	std::string Comment;
};

}

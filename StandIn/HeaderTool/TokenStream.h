// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Token.h"

#include <string>
#include <vector>

namespace HeaderTool
{

/** A cursor over the tokens of one header. */
class FTokenStream
{
public:
	/** Takes the tokens; the last one is End. */
	explicit FTokenStream(std::vector<FToken> InTokens);

	/** The token that many places ahead; End beyond the last one. */
	const FToken& Peek(std::size_t Ahead = 0) const;

	/** Steps behind the current token and returns it; throws FSyntaxError at a Bad token, stays at End. */
	const FToken& Next();

	/** Steps behind the current token without looking at it. */
	void Drop();

	/** True when nothing is left. */
	bool AtEnd() const { return Peek().Kind == ETokenKind::End; }

	/** Steps over the punctuation if it is next; tells whether it was. */
	bool MatchSymbol(const char* Symbol);

	/** Steps over the name if it is next; tells whether it was. */
	bool MatchIdentifier(const char* Name);

	/** Steps over the punctuation or throws "Missing '<Symbol>' in <Context>". */
	void RequireSymbol(const char* Symbol, const std::string& Context);

	/** Returns the name that is next or throws "Missing <What>". */
	const FToken& RequireName(const std::string& What);

	/** A number that grows with every step, to see whether anything was consumed. */
	std::size_t GetPosition() const { return Position; }

private:
	std::vector<FToken> Tokens;
	std::size_t Position = 0;
};

}

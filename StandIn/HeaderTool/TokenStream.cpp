// Copyright The Tintmill authors. All rights reserved.
#include "TokenStream.h"

#include "Diagnostics.h"

#include <algorithm>

namespace HeaderTool
{

FTokenStream::FTokenStream(std::vector<FToken> InTokens)
	: Tokens(std::move(InTokens))
{}

const FToken& FTokenStream::Peek(std::size_t Ahead) const
{
	return Tokens[std::min(Position + Ahead, Tokens.size() - 1)];
}

const FToken& FTokenStream::Next()
{
	const FToken& Token = Peek();
	Drop();
	if (Token.Kind == ETokenKind::Bad)
	{
		throw FSyntaxError(Token.Line, Token.Text);
	}
	return Token;
}

void FTokenStream::Drop()
{
	if (!AtEnd())
	{
		++Position;
	}
}

bool FTokenStream::MatchSymbol(const char* Symbol)
{
	const bool bMatch = Peek().IsSymbol(Symbol);
	if (bMatch)
	{
		Drop();
	}
	return bMatch;
}

bool FTokenStream::MatchIdentifier(const char* Name)
{
	const bool bMatch = Peek().IsIdentifier(Name);
	if (bMatch)
	{
		Drop();
	}
	return bMatch;
}

void FTokenStream::RequireSymbol(const char* Symbol, const std::string& Context)
{
	if (Peek().Kind == ETokenKind::Bad)
	{
		Next();
	}
	if (!MatchSymbol(Symbol))
	{
		throw FSyntaxError(Peek().Line, "Missing '" + std::string(Symbol) + "' in " + Context);
	}
}

const FToken& FTokenStream::RequireName(const std::string& What)
{
	if (Peek().Kind != ETokenKind::Identifier && Peek().Kind != ETokenKind::Bad)
	{
		throw FSyntaxError(Peek().Line, "Missing " + What);
	}
	return Next();
}

}

// Copyright The Tintmill authors. All rights reserved.
#include "Specifiers.h"

#include "Diagnostics.h"
#include "TextTools.h"
#include "TokenStream.h"

namespace HeaderTool
{

namespace
{

bool EndsTheList(const FToken& Token)
{
	return Token.Kind == ETokenKind::End || Token.IsSymbol(";") || Token.IsSymbol("{") || Token.IsSymbol("}");
}

/** A quoted text, or everything up to the next comma or parenthesis. */
std::string ParseValue(FTokenStream& Tokens, const std::string& Context)
{
	std::string Value;
	bool bAfterWord = false;
	if (Tokens.Peek().Kind == ETokenKind::String)
	{
		while (Tokens.Peek().Kind == ETokenKind::String)
		{
			Value += Tokens.Next().Text;
		}
		return Value;
	}
	const int StartLine = Tokens.Peek().Line;
	while (!Tokens.Peek().IsSymbol(",") && !Tokens.Peek().IsSymbol(")") && !Tokens.Peek().IsSymbol("(") && !EndsTheList(Tokens.Peek()))
	{
		const FToken& Token = Tokens.Next();
		const bool bWord = Token.Kind != ETokenKind::Symbol;
		Value += bWord && bAfterWord ? " " + Token.Text : Token.Text;
		bAfterWord = bWord;
	}
	if (Value.empty())
	{
		throw FSyntaxError(StartLine, "Missing value in " + Context);
	}
	return Value;
}

FSpecifier ParseSpecifier(FTokenStream& Tokens, const std::string& Context)
{
	FSpecifier Result;
	Result.Line = Tokens.Peek().Line;
	if (EndsTheList(Tokens.Peek()))
	{
		throw FSyntaxError(Tokens.Peek().Line, "Missing ')' in " + Context);
	}
	Result.Name = Tokens.RequireName("specifier name in " + Context).Text;
	if (!Tokens.MatchSymbol("="))
	{
		return Result;
	}
	Result.bHasValue = true;
	if (!Tokens.MatchSymbol("("))
	{
		Result.Values.push_back(ParseValue(Tokens, Context));
		return Result;
	}
	while (!Tokens.MatchSymbol(")"))
	{
		Result.Values.push_back(ParseValue(Tokens, Context));
		if (!Tokens.Peek().IsSymbol(")"))
		{
			Tokens.RequireSymbol(",", Context);
		}
	}
	return Result;
}

}

bool FSpecifier::Is(const char* Other) const
{
	return EqualsIgnoreCase(Name, Other);
}

std::string FSpecifier::GetJoinedValues() const
{
	std::string Result;
	for (const std::string& Value : Values)
	{
		Result += (Result.empty() ? "" : " ") + Value;
	}
	return Result;
}

const FSpecifier* FSpecifierSet::Find(const char* Name) const
{
	for (const FSpecifier& Specifier : Specifiers)
	{
		if (Specifier.Is(Name))
		{
			return &Specifier;
		}
	}
	return nullptr;
}

FSpecifierSet ParseSpecifiers(FTokenStream& Tokens, const std::string& Macro)
{
	const std::string Context = Macro + " declaration";
	FSpecifierSet Result;
	Tokens.RequireSymbol("(", Context);
	while (!Tokens.Peek().IsSymbol(")"))
	{
		if (Tokens.Peek().Kind == ETokenKind::Identifier && EqualsIgnoreCase(Tokens.Peek().Text, "meta"))
		{
			Tokens.Drop();
			Tokens.RequireSymbol("=", Context);
			Tokens.RequireSymbol("(", Context);
			while (!Tokens.MatchSymbol(")"))
			{
				Result.Meta.push_back(ParseSpecifier(Tokens, Context));
				if (!Tokens.Peek().IsSymbol(")"))
				{
					Tokens.RequireSymbol(",", Context);
				}
			}
		}
		else
		{
			Result.Specifiers.push_back(ParseSpecifier(Tokens, Context));
		}
		if (!Tokens.Peek().IsSymbol(")") && !Tokens.MatchSymbol(","))
		{
			throw FSyntaxError(Tokens.Peek().Line, "Missing ')' in " + Context);
		}
	}
	Result.LastLine = Tokens.Next().Line;
	return Result;
}

}

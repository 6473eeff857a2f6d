// Copyright The Tintmill authors. All rights reserved.
#include "MemberParser.h"

#include "Diagnostics.h"

namespace HeaderTool
{

namespace
{

/** Deeper than any type that makes sense, shallow enough for the stack. */
const int MaximumTypeDepth = 16;

}

FMemberParser::FMemberParser(FTokenStream& InTokens)
	: Tokens(InTokens)
{}

FProperty FMemberParser::ParseProperty(const FToken& Macro, EAccess Access)
{
	FProperty Property;
	Property.Comment = Macro.Comment;
	Property.Access = Access;
	Property.bEditorOnly = Macro.bEditorOnly;
	Property.Specifiers = ParseSpecifiers(Tokens, Macro.Text);
	Property.Line = Tokens.Peek().Line;
	Tokens.MatchIdentifier("mutable");
	Property.TypeExpression = ParseType(0);
	Property.Name = Tokens.RequireName("variable name").Text;
	if (Tokens.MatchSymbol("["))
	{
		Property.bFixedArray = true;
		while (!Tokens.Peek().IsSymbol("]") && !Tokens.Peek().IsSymbol(";") && !Tokens.AtEnd())
		{
			Tokens.Next();
		}
		Tokens.RequireSymbol("]", "variable definition");
	}
	if (Tokens.MatchSymbol(":"))
	{
		Property.bBitField = true;
		if (Tokens.Peek().Kind != ETokenKind::Number || Tokens.Next().Text != "1")
		{
			throw FSyntaxError(Property.Line, "Bad or missing bit field size for '" + Property.Name + "', must be 1.");
		}
	}
	ParseInitializer();
	Tokens.RequireSymbol(";", "variable definition");
	return Property;
}

FTypeExpression FMemberParser::ParseType(int Depth)
{
	FTypeExpression Type;
	Type.Line = Tokens.Peek().Line;
	if (Depth > MaximumTypeDepth)
	{
		throw FSyntaxError(Type.Line, "Nested containers are not supported.");
	}
	Type.bConst = Tokens.MatchIdentifier("const");
	if (!Tokens.MatchIdentifier("class") && !Tokens.MatchIdentifier("struct"))
	{
		Tokens.MatchIdentifier("enum");
	}
	Type.Name = Tokens.RequireName("variable type").Text;
	while (Tokens.MatchSymbol("::"))
	{
		Type.Name += "::" + Tokens.RequireName("variable type").Text;
	}
	if (Tokens.MatchSymbol("<"))
	{
		do
		{
			Type.Arguments.push_back(ParseType(Depth + 1));
		} while (Tokens.MatchSymbol(","));
		Tokens.RequireSymbol(">", Type.Name);
	}
	while (true)
	{
		if (Tokens.MatchIdentifier("const"))
		{
			Type.bConst = true;
		}
		else if (Tokens.MatchSymbol("*"))
		{
			++Type.Pointers;
		}
		else if (Tokens.MatchSymbol("&"))
		{
			Type.bReference = true;
		}
		else
		{
			return Type;
		}
	}
}

/** Steps over "= value" or "{value}". */
void FMemberParser::ParseInitializer()
{
	if (!Tokens.Peek().IsSymbol("=") && !Tokens.Peek().IsSymbol("{"))
	{
		return;
	}
	int Depth = 0;
	while (Depth > 0 || !Tokens.Peek().IsSymbol(";"))
	{
		const FToken& Token = Tokens.Peek();
		Depth += Token.IsSymbol("(") || Token.IsSymbol("{") ? 1 : 0;
		Depth -= Token.IsSymbol(")") || Token.IsSymbol("}") ? 1 : 0;
		if (Depth < 0 || Token.Kind == ETokenKind::End)
		{
			return;
		}
		Tokens.Next();
	}
}

}

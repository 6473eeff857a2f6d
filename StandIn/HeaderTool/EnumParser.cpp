// Copyright The Tintmill authors. All rights reserved.
#include "EnumParser.h"

#include "Diagnostics.h"

namespace HeaderTool
{

FEnumParser::FEnumParser(FReflectedType& InType, FTokenStream& InTokens)
	: Type(InType)
	, Tokens(InTokens)
{}

void FEnumParser::Parse()
{
	Type.Line = Tokens.Peek().Line;
	if (Tokens.Peek().IsIdentifier("namespace"))
	{
		throw FSyntaxError(Type.Line, "An enum in a namespace is not in this header tool; declare an enum class");
	}
	if (!Tokens.MatchIdentifier("enum"))
	{
		throw FSyntaxError(Type.Line, "Missing 'enum' in UENUM declaration");
	}
	Type.bEnumClass = Tokens.MatchIdentifier("class") || Tokens.MatchIdentifier("struct");
	Type.CppName = Tokens.RequireName("enumeration name").Text;
	if (Tokens.MatchSymbol(":"))
	{
		Type.UnderlyingType = Tokens.RequireName("underlying type in UENUM declaration").Text;
	}
	Tokens.RequireSymbol("{", "UENUM declaration");
	while (!Tokens.MatchSymbol("}"))
	{
		ParseEnumerator();
		if (!Tokens.Peek().IsSymbol("}"))
		{
			Tokens.RequireSymbol(",", "UENUM declaration");
		}
	}
	Tokens.RequireSymbol(";", "UENUM declaration");
}

void FEnumParser::ParseEnumerator()
{
	const FToken& Name = Tokens.RequireName("enumerator name");
	if (Name.bEditorOnly)
	{
		throw FSyntaxError(Name.Line, "An enumerator inside WITH_EDITORONLY_DATA is not in this header tool");
	}
	FEnumerator Enumerator;
	Enumerator.Name = Name.Text;
	Enumerator.MetaData.Set("Name", Type.bEnumClass ? Type.CppName + "::" + Name.Text : Name.Text);
	const std::string Comment = Name.Comment;
	if (Tokens.MatchSymbol("="))
	{
		int Depth = 0;
		while (Depth > 0 || !(Tokens.Peek().IsSymbol(",") || Tokens.Peek().IsSymbol("}") || Tokens.Peek().IsIdentifier("UMETA")))
		{
			if (Tokens.AtEnd())
			{
				throw FSyntaxError(Tokens.Peek().Line, "Unexpected end of file");
			}
			Depth += Tokens.Peek().IsSymbol("(") ? 1 : Tokens.Peek().IsSymbol(")") ? -1 : 0;
			Tokens.Next();
		}
	}
	if (Tokens.MatchIdentifier("UMETA"))
	{
		const FSpecifierSet Set = ParseSpecifiers(Tokens, "UMETA");
		for (const FSpecifier& Specifier : Set.Specifiers)
		{
			Enumerator.MetaData.Set(Specifier.Name, Specifier.GetJoinedValues());
		}
	}
	Enumerator.MetaData.AddComment(Comment);
	Type.Enumerators.push_back(Enumerator);
}

}

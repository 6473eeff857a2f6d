// Copyright The Tintmill authors. All rights reserved.
#include "RecordParser.h"

#include "MemberParser.h"
#include "Preprocessor.h"

namespace HeaderTool
{

FRecordParser::FRecordParser(FReflectedType& InType, FTokenStream& InTokens, const std::string& InFile, FDiagnostics& InDiagnostics)
	: Type(InType)
	, Tokens(InTokens)
	, File(InFile)
	, Diagnostics(InDiagnostics)
	, Context(InType.GetKindName() + std::string(" declaration"))
{
	Access = Type.Kind == ETypeKind::Class ? EAccess::Private : EAccess::Public;
}

void FRecordParser::Error(int Line, const std::string& Text)
{
	Diagnostics.Error(File, Line, Text);
}

void FRecordParser::Parse()
{
	ParseHead();
	ParseBases();
	Tokens.RequireSymbol("{", Context);
	ParseBodyMacro();
	ParseBody();
	Tokens.RequireSymbol(";", Context);
}

void FRecordParser::ParseHead()
{
	Type.Line = Tokens.Peek().Line;
	if (!Tokens.MatchIdentifier(Type.GetKindName()))
	{
		throw FSyntaxError(Type.Line, "Missing '" + std::string(Type.GetKindName()) + "' in " + Context);
	}
	while (Tokens.Peek().IsIdentifier("alignas") || Tokens.Peek().IsSymbol("["))
	{
		if (Tokens.Peek().IsIdentifier("alignas"))
		{
			Tokens.Next();
		}
		SkipBalanced();
	}
	Type.CppName = Tokens.RequireName(std::string(Type.GetKindName()) + " name").Text;
	if (Tokens.Peek().Kind == ETokenKind::Identifier && !Tokens.Peek().IsIdentifier("final"))
	{
		const std::string Macro = Type.CppName;
		Type.CppName = Tokens.Next().Text;
		Type.bExported = true;
		if (Macro != Type.ModuleApi)
		{
			throw FSyntaxError(Type.Line, "'" + Macro + "' is not the export macro of this module, expecting '" + Type.ModuleApi + "'");
		}
	}
	Tokens.MatchIdentifier("final");
}

void FRecordParser::ParseBases()
{
	if (!Tokens.MatchSymbol(":"))
	{
		return;
	}
	do
	{
		if (!Tokens.MatchIdentifier("public"))
		{
			throw FSyntaxError(Tokens.Peek().Line, "Missing 'public' in inheritance");
		}
		std::string Name = Tokens.RequireName("base class name").Text;
		while (Tokens.MatchSymbol("::"))
		{
			Name += "::" + Tokens.RequireName("base class name").Text;
		}
		if (Tokens.Peek().IsSymbol("<"))
		{
			int Depth = 0;
			do
			{
				Depth += Tokens.Peek().IsSymbol("<") ? 1 : Tokens.Peek().IsSymbol(">") ? -1 : 0;
				if (Tokens.AtEnd() || Tokens.Peek().IsSymbol("{") || Tokens.Peek().IsSymbol(";"))
				{
					throw FSyntaxError(Tokens.Peek().Line, "Missing '>' in " + Context);
				}
				Tokens.Next();
			} while (Depth > 0);
			Name += "<>";
		}
		// Only the first base takes part in reflection; further ones are the compiler's business.
		if (Type.BaseName.empty())
		{
			Type.BaseName = Name;
		}
	} while (Tokens.MatchSymbol(","));
}

void FRecordParser::ParseBodyMacro()
{
	const FToken& Token = Tokens.Peek();
	Type.BodyLine = Token.Line;
	const bool bClass = Type.Kind == ETypeKind::Class;
	Type.bLegacyBody = bClass && Token.IsIdentifier("GENERATED_UCLASS_BODY");
	if (!Token.IsIdentifier("GENERATED_BODY") && !Type.bLegacyBody && !(!bClass && Token.IsIdentifier("GENERATED_USTRUCT_BODY")))
	{
		Error(Type.Line, "Expected a GENERATED_BODY() at the start of " + std::string(Type.GetKindName()));
		return;
	}
	const std::string Macro = Tokens.Next().Text;
	Tokens.RequireSymbol("(", Macro);
	Tokens.RequireSymbol(")", Macro);
	Tokens.MatchSymbol(";");
	Access = bClass && !Type.bLegacyBody ? EAccess::Private : EAccess::Public;
}

void FRecordParser::ParseBody()
{
	while (!Tokens.MatchSymbol("}"))
	{
		const std::size_t Start = Tokens.GetPosition();
		if (Tokens.AtEnd())
		{
			throw FSyntaxError(Tokens.Peek().Line, "Unexpected end of file");
		}
		try
		{
			ParseMember();
		}
		catch (const FSyntaxError& Problem)
		{
			Error(Problem.GetLine(), Problem.what());
			while (!Tokens.AtEnd() && !StartsMember() && !Tokens.Peek().IsSymbol("}") && !Tokens.MatchSymbol(";"))
			{
				Tokens.Drop();
			}
			if (Tokens.GetPosition() == Start)
			{
				Tokens.Drop();
			}
		}
	}
}

bool FRecordParser::StartsMember() const
{
	const FToken& Token = Tokens.Peek();
	const bool bLabel = Token.IsIdentifier("public") || Token.IsIdentifier("protected") || Token.IsIdentifier("private");
	return Token.Kind == ETokenKind::Identifier
		&& ((bLabel && Tokens.Peek(1).IsSymbol(":")) || (IsReflectionMacro(Token.Text) && Tokens.Peek(1).IsSymbol("(")));
}

bool FRecordParser::MatchAccess()
{
	if (!Tokens.Peek(1).IsSymbol(":"))
	{
		return false;
	}
	const FToken& Token = Tokens.Peek();
	if (Token.IsIdentifier("public"))
	{
		Access = EAccess::Public;
	}
	else if (Token.IsIdentifier("protected"))
	{
		Access = EAccess::Protected;
	}
	else if (Token.IsIdentifier("private"))
	{
		Access = EAccess::Private;
	}
	else
	{
		return false;
	}
	Tokens.Drop();
	Tokens.Drop();
	return true;
}

void FRecordParser::ParseMember()
{
	if (MatchAccess() || Tokens.MatchSymbol(";"))
	{
		return;
	}
	const FToken Token = Tokens.Peek();
	if (!StartsMember())
	{
		SkipDeclaration();
		return;
	}
	Tokens.Drop();
	if (Token.Text == "UPROPERTY")
	{
		Type.Properties.push_back(FMemberParser(Tokens).ParseProperty(Token, Access));
	}
	else if (Token.Text == "UFUNCTION")
	{
		throw FSyntaxError(
			Token.Line, Type.Kind == ETypeKind::Struct ? "USTRUCTs cannot contain UFUNCTIONs." : "'UFUNCTION' is not in this header tool");
	}
	else
	{
		throw FSyntaxError(Token.Line, "'" + Token.Text + "' must not be inside a namespace or another class");
	}
}

}

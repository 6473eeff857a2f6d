// Copyright The Tintmill authors. All rights reserved.
#include "RecordParser.h"

#include "Preprocessor.h"

namespace HeaderTool
{

namespace
{

bool IsFunctionPrefix(const FToken& Token)
{
	const std::string& Text = Token.Text;
	const bool bApi = Text.size() > 4 && Text.compare(Text.size() - 4, 4, "_API") == 0;
	return Token.Kind == ETokenKind::Identifier
		&& (bApi || Text == "explicit" || Text == "inline" || Text == "FORCEINLINE" || Text == "constexpr");
}

}

/** Notes which constructors the class declares itself; does not step over anything. */
void FRecordParser::ParseConstructor()
{
	std::size_t At = 0;
	while (IsFunctionPrefix(Tokens.Peek(At)))
	{
		++At;
	}
	if (!Tokens.Peek(At).IsIdentifier(Type.CppName.c_str()) || !Tokens.Peek(At + 1).IsSymbol("("))
	{
		return;
	}
	At += 2;
	const bool bEmpty = Tokens.Peek(At).IsSymbol(")") || (Tokens.Peek(At).IsIdentifier("void") && Tokens.Peek(At + 1).IsSymbol(")"));
	Type.bDeclaresDefaultConstructor = Type.bDeclaresDefaultConstructor || bEmpty;
	for (; !Tokens.Peek(At).IsSymbol(")") && Tokens.Peek(At).Kind != ETokenKind::End; ++At)
	{
		Type.bDeclaresInitializerConstructor = Type.bDeclaresInitializerConstructor || Tokens.Peek(At).IsIdentifier("FObjectInitializer");
		Type.bDeclaresHelperConstructor = Type.bDeclaresHelperConstructor || Tokens.Peek(At).IsIdentifier("FVTableHelper");
	}
}

/** Steps over one declaration that reflection does not look at, with its body. */
void FRecordParser::SkipDeclaration()
{
	ParseConstructor();
	bool bBody = false;
	while (!Tokens.AtEnd() && !Tokens.Peek().IsSymbol("}") && !StartsMember())
	{
		const FToken Token = Tokens.Peek();
		const bool bDelegate = Token.Kind == ETokenKind::Identifier && Token.Text.compare(0, 16, "DECLARE_DYNAMIC_") == 0;
		if (bDelegate)
		{
			Error(Token.Line, "'" + Token.Text + "' is not in this header tool");
		}
		if (Token.IsIdentifier("GENERATED_BODY") || Token.IsIdentifier("GENERATED_UCLASS_BODY"))
		{
			Error(Type.Line, "Expected a GENERATED_BODY() at the start of " + std::string(Type.GetKindName()));
		}
		if (Token.IsSymbol(";"))
		{
			Tokens.Drop();
			return;
		}
		const bool bOpens = Token.IsSymbol("(") || Token.IsSymbol("{") || Token.IsSymbol("[");
		if (!bOpens)
		{
			// Behind a body only the rest of an initialiser list belongs to the same declaration.
			if (bBody && !Token.IsSymbol(","))
			{
				return;
			}
			bBody = false;
			Tokens.Next();
			continue;
		}
		SkipBalanced();
		bBody = bBody || Token.IsSymbol("{");
	}
}

/** Steps over a bracket and everything up to the one that closes it. */
void FRecordParser::SkipBalanced()
{
	int Depth = 0;
	do
	{
		const FToken& Token = Tokens.Peek();
		if (Token.Kind == ETokenKind::End)
		{
			throw FSyntaxError(Token.Line, "Unexpected end of file");
		}
		if (Token.Kind == ETokenKind::Identifier && IsReflectionMacro(Token.Text) && Tokens.Peek(1).IsSymbol("("))
		{
			Error(Token.Line, "'" + Token.Text + "' must not be inside a class or function that is not reflected");
		}
		Depth += Token.IsSymbol("(") || Token.IsSymbol("{") || Token.IsSymbol("[") ? 1 : 0;
		Depth -= Token.IsSymbol(")") || Token.IsSymbol("}") || Token.IsSymbol("]") ? 1 : 0;
		Tokens.Next();
	} while (Depth > 0);
}

}

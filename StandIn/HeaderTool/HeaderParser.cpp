// Copyright The Tintmill authors. All rights reserved.
#include "HeaderParser.h"

#include "EnumParser.h"
#include "RecordParser.h"
#include "Tokenizer.h"

namespace HeaderTool
{

FHeaderParser::FHeaderParser(FHeader& InHeader, FDiagnostics& InDiagnostics)
	: Header(InHeader)
	, Diagnostics(InDiagnostics)
	, File(InHeader.Path.generic_string())
{}

void FHeaderParser::Error(int Line, const std::string& Text)
{
	Diagnostics.Error(File, Line, Text);
}

void FHeaderParser::Parse(const std::string& Text)
{
	FPreprocessor Preprocessor(File, Diagnostics);
	const std::vector<FToken> Tokens = Preprocessor.Filter(FTokenizer(Text).Tokenize());
	CheckIncludes(Preprocessor.GetIncludes(), FindFirstMacroLine(Tokens));
	FTokenStream Stream(Tokens);
	ParseTopLevel(Stream);
}

int FHeaderParser::FindFirstMacroLine(const std::vector<FToken>& Tokens) const
{
	for (const FToken& Token : Tokens)
	{
		if (Token.Kind == ETokenKind::Identifier && IsReflectionMacro(Token.Text))
		{
			return Token.Line;
		}
	}
	return Tokens.back().Line;
}

void FHeaderParser::CheckIncludes(const std::vector<FInclude>& Includes, int FirstMacroLine)
{
	const std::string Expected = Header.Leaf + ".generated.h";
	bool bFound = false;
	for (const FInclude& Include : Includes)
	{
		if (bFound)
		{
			Error(Include.Line,
				"#include found after .generated.h file - the .generated.h file should always be the last #include in a header");
			return;
		}
		bFound = Include.Target == Expected && Include.Line < FirstMacroLine;
	}
	if (!bFound)
	{
		Error(FirstMacroLine, "Expected an include at the top of the header: '#include \"" + Expected + "\"'");
	}
}

void FHeaderParser::ParseTopLevel(FTokenStream& Tokens)
{
	int Depth = 0;
	while (!Tokens.AtEnd())
	{
		const FToken& Token = Tokens.Peek();
		const bool bMacro = Token.Kind == ETokenKind::Identifier && Tokens.Peek(1).IsSymbol("(");
		try
		{
			if (bMacro && (IsReflectionMacro(Token.Text) || Token.Text.compare(0, 16, "DECLARE_DYNAMIC_") == 0))
			{
				ParseMacro(Tokens, Depth);
				continue;
			}
			Depth += Token.IsSymbol("{") ? 1 : Token.IsSymbol("}") ? -1 : 0;
			Tokens.Next();
		}
		catch (const FSyntaxError& Problem)
		{
			Error(Problem.GetLine(), Problem.what());
		}
	}
	if (Depth > 0)
	{
		Error(Tokens.Peek().Line, "Unexpected end of file");
	}
}

bool FHeaderParser::RefuseMisplaced(const FToken& Macro, int Depth)
{
	if (Macro.Text == "UPROPERTY" || Macro.Text == "UFUNCTION")
	{
		Error(Macro.Line, "'" + Macro.Text + "' is only allowed in a class or struct that is declared with UCLASS or USTRUCT");
		return true;
	}
	if (Macro.Text != "UCLASS" && Macro.Text != "USTRUCT" && Macro.Text != "UENUM")
	{
		Error(Macro.Line, "'" + Macro.Text + "' is not in this header tool");
		return true;
	}
	if (Depth > 0)
	{
		Error(Macro.Line, "'" + Macro.Text + "' must not be inside a namespace or another class");
		return true;
	}
	if (Macro.bEditorOnly)
	{
		Error(Macro.Line, "'" + Macro.Text + "' inside WITH_EDITORONLY_DATA is not in this header tool");
		return true;
	}
	return false;
}

void FHeaderParser::ParseMacro(FTokenStream& Tokens, int Depth)
{
	const FToken Macro = Tokens.Next();
	if (RefuseMisplaced(Macro, Depth))
	{
		return;
	}
	auto Type = std::make_unique<FReflectedType>();
	Type->Kind = Macro.Text == "UCLASS" ? ETypeKind::Class : Macro.Text == "USTRUCT" ? ETypeKind::Struct : ETypeKind::Enum;
	Type->Header = &Header;
	Type->ModuleApi = Header.Module->GetApiMacro();
	Type->MacroLine = Macro.Line;
	Type->Comment = Macro.Comment;
	Type->Specifiers = ParseSpecifiers(Tokens, Macro.Text);
	Type->MacroLastLine = Type->Specifiers.LastLine;
	// A type that cannot be read to its end is still known by name, so that its users are not complained about.
	Header.Types.push_back(std::move(Type));
	FReflectedType& Added = *Header.Types.back();
	Added.bBroken = true;
	if (Added.Kind == ETypeKind::Enum)
	{
		FEnumParser(Added, Tokens).Parse();
	}
	else
	{
		FRecordParser(Added, Tokens, File, Diagnostics).Parse();
	}
	Added.bBroken = false;
}

}

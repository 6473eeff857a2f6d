// Copyright The Tintmill authors. All rights reserved.
#include "Preprocessor.h"

#include <algorithm>

namespace HeaderTool
{

namespace
{

const char* const Blanks = " \t\v\f";

std::string Trim(const std::string& Text)
{
	const std::size_t First = Text.find_first_not_of(Blanks);
	return First == std::string::npos ? "" : Text.substr(First, Text.find_last_not_of(Blanks) - First + 1);
}

}

bool IsReflectionMacro(const std::string& Name)
{
	static const char* const Macros[] = {"UCLASS", "USTRUCT", "UENUM", "UINTERFACE", "UDELEGATE", "UPROPERTY", "UFUNCTION"};
	return std::find(std::begin(Macros), std::end(Macros), Name) != std::end(Macros);
}

FPreprocessor::FPreprocessor(const std::string& InFile, FDiagnostics& InDiagnostics)
	: File(InFile)
	, Diagnostics(InDiagnostics)
{}

std::vector<FToken> FPreprocessor::Filter(const std::vector<FToken>& Tokens)
{
	std::vector<FToken> Result;
	for (std::size_t Index = 0; Index < Tokens.size(); ++Index)
	{
		const FToken& Token = Tokens[Index];
		if (Token.Kind == ETokenKind::Directive)
		{
			HandleDirective(Token);
		}
		else if (Token.Kind == ETokenKind::End)
		{
			Result.push_back(Token);
		}
		else if (!IsInside(EBlock::Zero))
		{
			const bool bCall = Index + 1 < Tokens.size() && Tokens[Index + 1].IsSymbol("(");
			const bool bRefused = bCall && IsRefused(Token);
			if (bRefused)
			{
				Diagnostics.Error(
					File, Token.Line, "'" + Token.Text + "' must not be inside preprocessor blocks, except for WITH_EDITORONLY_DATA");
			}
			if (!IsInside(EBlock::Skipped))
			{
				Result.push_back(Token);
				Result.back().bEditorOnly = IsInside(EBlock::EditorOnly);
				if (bRefused)
				{
					Result.back().Text = "REFUSED";
				}
			}
		}
	}
	for (const FFrame& Frame : Frames)
	{
		Diagnostics.Error(File, Frame.Line, "Missing '#endif' for this preprocessor block");
	}
	return Result;
}

void FPreprocessor::HandleDirective(const FToken& Token)
{
	const std::string Text = Trim(Token.Text);
	const std::size_t KeywordEnd = std::min(Text.find_first_not_of("abcdefghijklmnopqrstuvwxyz_"), Text.size());
	const std::string Keyword = Text.substr(0, KeywordEnd);
	const std::string Rest = Trim(Text.substr(KeywordEnd));
	if (Keyword == "if" || Keyword == "ifdef" || Keyword == "ifndef")
	{
		Enter(Classify(Keyword, Rest), Token.Line);
	}
	else if (Keyword == "else" || Keyword == "elif" || Keyword == "endif")
	{
		if (Frames.empty())
		{
			Diagnostics.Error(File, Token.Line, "Unmatched '#" + Keyword + "'");
		}
		else if (Keyword == "endif")
		{
			Leave();
		}
		else
		{
			const bool bAfterZero = Leave() == EBlock::Zero && Keyword == "else";
			Enter(bAfterZero ? EBlock::Read : EBlock::Skipped, Token.Line);
		}
	}
	else if (Keyword == "include" && !IsInside(EBlock::Zero))
	{
		const std::size_t End = Rest.size() > 1 ? Rest.find(Rest[0] == '<' ? '>' : '"', 1) : std::string::npos;
		Includes.push_back({End == std::string::npos ? Rest : Rest.substr(1, End - 1), Token.Line});
	}
}

FPreprocessor::EBlock FPreprocessor::Classify(const std::string& Keyword, const std::string& Condition)
{
	if (Keyword == "ifndef")
	{
		return EBlock::Skipped;
	}
	if (Condition == "WITH_EDITORONLY_DATA")
	{
		return EBlock::EditorOnly;
	}
	if (Condition == "0" && Keyword == "if")
	{
		return EBlock::Zero;
	}
	const bool bRead = Condition == "WITH_EDITOR" || Condition == "WITH_HOT_RELOAD" || Condition == "1" || Condition == "!CPP";
	return bRead ? EBlock::Read : EBlock::Skipped;
}

void FPreprocessor::Enter(EBlock Block, int Line)
{
	Frames.push_back({Block, Line});
	++Counts[static_cast<std::size_t>(Block)];
}

FPreprocessor::EBlock FPreprocessor::Leave()
{
	const EBlock Block = Frames.back().Block;
	--Counts[static_cast<std::size_t>(Block)];
	Frames.pop_back();
	return Block;
}

bool FPreprocessor::IsRefused(const FToken& Token) const
{
	return Token.Kind == ETokenKind::Identifier && IsReflectionMacro(Token.Text) && (IsInside(EBlock::Skipped) || IsInside(EBlock::Read));
}

}

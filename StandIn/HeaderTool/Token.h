// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <string>

namespace HeaderTool
{

/** What a token is. */
enum class ETokenKind
{
	/** The end of the text. */
	End,
	/** A name or a keyword. */
	Identifier,
	/** A number. */
	Number,
	/** A text in double quotes; the token's text is what stands between them, escapes resolved. */
	String,
	/** A character in single quotes, with them. */
	Character,
	/** One punctuation character, or "::". */
	Symbol,
	/** A preprocessor line without its '#', continuation lines joined, comments removed. */
	Directive,
	/** Something that ends the parse when it is reached; the token's text is the complaint. */
	Bad,
};

/** One piece of a header. */
struct FToken
{
	ETokenKind Kind = ETokenKind::End;
	std::string Text;
	/** The line on which the token starts, counted from 1. */
	int Line = 1;
	/** The comment directly before the token, with its markers. */
	std::string Comment;
	/** True inside #if WITH_EDITORONLY_DATA. */
	bool bEditorOnly = false;

	/** Tells whether the token is this name. */
	bool IsIdentifier(const char* Name) const { return Kind == ETokenKind::Identifier && Text == Name; }

	/** Tells whether the token is this punctuation. */
	bool IsSymbol(const char* Name) const { return Kind == ETokenKind::Symbol && Text == Name; }
};

}

// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{

class FTokenStream;

/** One word in the parentheses of a reflection macro, with its values. */
struct FSpecifier
{
	std::string Name;
	/** One value for Name=Value, several for Name=(A,B), none for a bare name. */
	std::vector<std::string> Values;
	bool bHasValue = false;
	int Line = 1;

	/** Tells whether this is the specifier of the given name; the case of letters does not matter. */
	bool Is(const char* Other) const;

	/** The values joined by blanks. */
	std::string GetJoinedValues() const;
};

/** Everything in the parentheses of a reflection macro. */
struct FSpecifierSet
{
	std::vector<FSpecifier> Specifiers;
	/** The entries of meta=(...). */
	std::vector<FSpecifier> Meta;
	/** The line of the closing parenthesis. */
	int LastLine = 1;

	/** The specifier of that name or null. */
	const FSpecifier* Find(const char* Name) const;
};

/** Reads "(...)" behind the named macro; throws FSyntaxError. */
FSpecifierSet ParseSpecifiers(FTokenStream& Tokens, const std::string& Macro);

}

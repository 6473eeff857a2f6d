// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/CommandText.h"

namespace TintmillHost
{
namespace
{
constexpr std::string_view Blanks = " \t\r";

bool IsQuote(char Character)
{
	return Character == '"' || Character == '\'';
}

std::string Trimmed(std::string_view Text)
{
	const size_t First = Text.find_first_not_of(Blanks);
	if (First == std::string_view::npos)
	{
		return {};
	}
	return std::string(Text.substr(First, Text.find_last_not_of(Blanks) - First + 1));
}

/** Splits at line ends and, if wanted, at semicolons. */
std::vector<FNumberedCommand> Split(std::string_view Text, bool bAtSemicolons)
{
	std::vector<FNumberedCommand> Commands;
	std::string Current;
	char Quote = 0;
	bool bComment = false;
	int Line = 1;

	const auto Finish = [&] {
		if (std::string Command = Trimmed(Current); !Command.empty())
		{
			Commands.push_back({Line, std::move(Command)});
		}
		Current.clear();
		Quote = 0;
	};

	for (const char Character : Text)
	{
		if (Character == '\n')
		{
			Finish();
			bComment = false;
			++Line;
		}
		else if (bComment)
		{
			continue;
		}
		else if (Quote != 0)
		{
			Current += Character;
			Quote = Character == Quote ? 0 : Quote;
		}
		else if (Character == ';' && bAtSemicolons)
		{
			Finish();
		}
		else if (Character == '#')
		{
			bComment = true;
		}
		else
		{
			const bool bWordStarts = Current.empty() || Blanks.find(Current.back()) != std::string_view::npos;
			Current += Character;
			Quote = bWordStarts && IsQuote(Character) ? Character : 0;
		}
	}
	Finish();
	return Commands;
}

}

std::vector<FNumberedCommand> SplitLines(std::string_view Text)
{
	return Split(Text, false);
}

std::vector<std::string> SplitCommands(std::string_view Text)
{
	std::vector<std::string> Commands;
	for (FNumberedCommand& Command : Split(Text, true))
	{
		Commands.push_back(std::move(Command.Text));
	}
	return Commands;
}

std::vector<std::string> SplitWords(std::string_view Command)
{
	std::vector<std::string> Words;
	std::string Current;
	bool bInWord = false;
	char Quote = 0;

	for (const char Character : Command)
	{
		if (Quote != 0)
		{
			if (Character == Quote)
			{
				Quote = 0;
			}
			else
			{
				Current += Character;
			}
		}
		else if (!bInWord && IsQuote(Character))
		{
			Quote = Character;
			bInWord = true;
		}
		else if (Blanks.find(Character) != std::string_view::npos)
		{
			if (bInWord)
			{
				Words.push_back(std::move(Current));
				Current.clear();
				bInWord = false;
			}
		}
		else
		{
			Current += Character;
			bInWord = true;
		}
	}
	if (bInWord)
	{
		Words.push_back(std::move(Current));
	}
	return Words;
}
}

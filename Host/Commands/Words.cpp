// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/Words.h"

#include "Host/Console/Console.h"

#include <charconv>
#include <sstream>

namespace TintmillHost
{
double ParseNumber(const std::string& Word, double Min, double Max, const std::string& What)
{
	double Value = 0.0;
	const auto [End, Error] = std::from_chars(Word.data(), Word.data() + Word.size(), Value);
	if (Error != std::errc() || End != Word.data() + Word.size() || !(Value >= Min && Value <= Max))
	{
		std::ostringstream Sentence;
		Sentence << "'" << Word << "' is not " << What << " from " << Min << " to " << Max << ".";
		throw FCommandError(Sentence.str());
	}
	return Value;
}

bool ParseSwitch(const std::string& Word)
{
	if (Word == "on" || Word == "true" || Word == "1")
	{
		return true;
	}
	if (Word == "off" || Word == "false" || Word == "0")
	{
		return false;
	}
	throw FCommandError("'" + Word + "' is neither on nor off.");
}
}

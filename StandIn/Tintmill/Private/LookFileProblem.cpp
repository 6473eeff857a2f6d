// Copyright The Tintmill authors. All rights reserved.

#include "LookFileProblem.h"

#include <utility>

namespace LookFile
{
bool Refuse(FProblem& OutProblem, std::int64_t Line, std::string Reason)
{
	OutProblem.Line = Line;
	OutProblem.Reason = std::move(Reason);
	return false;
}

std::string Quoted(std::string_view Word)
{
	constexpr std::size_t Longest = 24;
	std::string Result = "\"";
	for (const char Character : Word.substr(0, Longest))
	{
		Result += Character >= 0x20 && Character < 0x7f ? Character : '?';
	}
	Result += Word.size() > Longest ? "...\"" : "\"";
	return Result;
}

std::string Sentence(const std::filesystem::path& Path, const FProblem& Problem)
{
	const std::u8string Leaf = Path.filename().u8string();
	std::string Result(Leaf.begin(), Leaf.end());
	if (Problem.Line > 0)
	{
		Result += "(" + std::to_string(Problem.Line) + ")";
	}
	return Result + ": " + Problem.Reason;
}
}

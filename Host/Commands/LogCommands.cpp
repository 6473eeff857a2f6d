// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/LogCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/Program/HostLog.h"
#include "Host/Program/Strings.h"

#include "StandIn/Notices.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
constexpr size_t UsualLines = 20;
constexpr double MaxLines = 1000000.0;

void PrintLastLines(const FHostLog& Log, size_t Count, std::ostream& Output)
{
	const std::vector<FLogLine>& Lines = Log.GetLines();
	// What is printed may be logged in turn, so the end is noted first.
	const size_t End = Lines.size();
	std::string Text;
	for (size_t Index = End - std::min(End, Count); Index < End; ++Index)
	{
		Text += Lines[Index].Text + "\n";
	}
	Output << Text;
}

void ExpectLine(const FHostLog& Log, const std::string& Text)
{
	const std::vector<FLogLine>& Lines = Log.GetLines();
	if (std::none_of(Lines.begin(), Lines.end(), [&Text](const FLogLine& Line) { return Line.Text.find(Text) != std::string::npos; }))
	{
		throw FCommandError(
			"No line of the log contains '" + Text + "'; the last one is '" + (Lines.empty() ? std::string() : Lines.back().Text) + "'.");
	}
}

void ExpectNotice(const std::string& Text)
{
	std::string Texts;
	for (const StandIn::FNotice& Notice : StandIn::GetNotices())
	{
		if (ToUtf8(Notice.Text).find(Text) != std::string::npos)
		{
			return;
		}
		Texts += (Texts.empty() ? "'" : ", '") + ToUtf8(Notice.Text) + "'";
	}
	throw FCommandError("No notice contains '" + Text + "'; " + (Texts.empty() ? "there is none." : "there is " + Texts + "."));
}
}

void AddLogCommands(FConsole& Console, const FHostLog& Log)
{
	const FConsole::FGroup Group(Console, "What there is");
	Console.Add("log [COUNT]", "show the last lines of the log", {"log", "log 100"}, [&Log](const FArguments& Words, std::ostream& Output) {
		PrintLastLines(
			Log, Words.empty() ? UsualLines : static_cast<size_t>(ParseNumber(Words[0], 1.0, MaxLines, "a number of lines")), Output);
	});
	Console.Add("expect-log TEXT...", "end the run unless a line of the log contains the text", {"expect-log LogInit:"},
		[&Log](const FArguments& Words, std::ostream&) { ExpectLine(Log, JoinWords(Words)); });
	Console.Add("expect-notice TEXT...", "end the run unless a notice contains the text", {"expect-notice could not be read"},
		[](const FArguments& Words, std::ostream&) { ExpectNotice(JoinWords(Words)); });
}
}

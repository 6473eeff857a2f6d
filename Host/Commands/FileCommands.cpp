// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/FileCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Console/Console.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace TintmillHost
{
namespace
{
/** Time for what watches the folder to see a change. */
constexpr double NoticeSeconds = 0.5;

/** The text with a line break for each "\n" in it, and one at its end. */
std::string BreakLines(const std::string& Text)
{
	std::string Lines;
	for (size_t Index = 0; Index < Text.size(); ++Index)
	{
		const bool bBreak = Text.compare(Index, 2, "\\n") == 0;
		Lines += bBreak ? '\n' : Text[Index];
		Index += bBreak ? 1 : 0;
	}
	return Lines + "\n";
}

std::string ReadWhole(const std::filesystem::path& File)
{
	std::error_code Error;
	std::ifstream Stream(File, std::ios::binary);
	if (!Stream || std::filesystem::is_directory(File, Error))
	{
		throw FCommandError("The file " + File.string() + " cannot be read.");
	}
	return std::string((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
}
}

void AddFileCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "Files of the project");
	Console.Add("write-file FILE TEXT...",
		"write a file of the tour's own into the content folder, lines parted by \\n; it is taken away when the run ends",
		{"write-file Looks/Broken.cube LUT_3D_SIZE 2\\n0 0 0\\n1 0,5 0"}, [&Program](const FArguments& Words, std::ostream&) {
			Program.GetTourRun().GetFiles().Write(Program.GetContentFolder(), Words[0], BreakLines(JoinWordsFrom(Words, 1)));
			Program.TickEditor(NoticeSeconds);
		});
	Console.Add("copy-file FROM FILE", "write a copy of a file of the content folder as write-file does",
		{"copy-file Looks/WarmPrint.cube Looks/Mended.cube"}, [&Program](const FArguments& Words, std::ostream&) {
			const std::filesystem::path Folder = Program.GetContentFolder();
			Program.GetTourRun().GetFiles().Write(Folder, Words[1], ReadWhole(Folder / PathFromUtf8(Words[0])));
			Program.TickEditor(NoticeSeconds);
		});
	Console.Add("own-file FILE", "take away, when the run ends, a file that the tour is about to have made by the program",
		{"own-file Looks/Fresh.cube"}, [&Program](const FArguments& Words, std::ostream&) {
			Program.GetTourRun().GetFiles().Expect(Program.GetContentFolder(), Words[0]);
		});
	Console.Add("remove-file FILE", "take away a file that write-file or copy-file has written", {"remove-file Looks/Broken.cube"},
		[&Program](const FArguments& Words, std::ostream&) {
			Program.GetTourRun().GetFiles().Remove(Program.GetContentFolder(), Words[0]);
			Program.TickEditor(NoticeSeconds);
		});
}
}

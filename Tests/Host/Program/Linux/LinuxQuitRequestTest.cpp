// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/QuitRequest.h"

#include "Tests/Host/HostRun.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using TintmillHost::FQuitRequest;

/** How a process of the test's own ended that ran a body: its exit code, 128 and the signal's number for a signal. */
template <typename BodyType>
int RunChild(const BodyType& Body)
{
	const pid_t Child = fork();
	if (Child == 0)
	{
		_exit(Body());
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
}

TEST(LinuxQuitRequest, NobodyAsksAtFirst)
{
	EXPECT_EQ(RunChild([] {
		const FQuitRequest Request;
		return FQuitRequest::IsRequested() || FQuitRequest::GetExitCode() != 0 ? 1 : 0;
	}),
		0);
}

TEST(LinuxQuitRequest, TheFirstSignalIsOnlyNoted)
{
	for (const int Signal : {SIGINT, SIGTERM, SIGHUP})
	{
		EXPECT_EQ(RunChild([Signal] {
			const FQuitRequest Request;
			raise(Signal);
			return FQuitRequest::IsRequested() && FQuitRequest::GetExitCode() == 128 + Signal ? 0 : 1;
		}),
			0);
	}
}

TEST(LinuxQuitRequest, TheSecondSignalEndsTheProcessAtOnce)
{
	EXPECT_EQ(RunChild([] {
		const FQuitRequest Request;
		raise(SIGTERM);
		raise(SIGINT);
		return 0;
	}),
		128 + SIGINT);
}

TEST(LinuxQuitRequest, ASignalThatWasToBeIgnoredStaysSo)
{
	EXPECT_EQ(RunChild([] {
		signal(SIGHUP, SIG_IGN);
		const FQuitRequest Request;
		raise(SIGHUP);
		return FQuitRequest::IsRequested() ? 1 : 0;
	}),
		0);
}

TEST(LinuxQuitRequest, AfterItSignalsEndTheProcessAsBefore)
{
	EXPECT_EQ(RunChild([] {
		{
			const FQuitRequest Request;
		}
		raise(SIGTERM);
		return 0;
	}),
		128 + SIGTERM);
}

/** The program at work on a copy of the demo project, with more to do than a test has time for. */
class FBusyProgram : public FHostRun
{
public:
	explicit FBusyProgram(const std::string& Commands = "")
		: Program(TINTMILL_EDITOR,
			{"--headless", "--last-session", "--size", "64x36", "--project", Path("Project").string(), "--out", Path("out").string(),
				"--exec", Commands + "; panes; " + Ticks()})
	{
		// The list of panes marks the active one.
		int NumLines = 0;
		while (Program.ReadLine().rfind("* ", 0) != 0 && ++NumLines < 1000)
		{}
	}

	void Send(int Signal) const { kill(static_cast<pid_t>(Program.GetProcess()), Signal); }

	FRunningProgram Program;

private:
	static std::string Ticks()
	{
		std::string Text;
		for (int Index = 0; Index < 2000; ++Index)
		{
			Text += "tick 2;";
		}
		return Text;
	}
};

TEST(LinuxQuitRequest, ARunWithoutAWindowLeavesInTheEnginesOrderAfterTheCommandThatRuns)
{
	FBusyProgram Busy;
	Busy.Send(SIGTERM);
	const FProgramResult Result = Busy.Program.Wait();
	EXPECT_EQ(Result.Code, 128 + SIGTERM) << Result.Output;
	EXPECT_NE(Result.Output.find("Engine exit requested"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("Shutting down and abandoning module TintmillEditor"), std::string::npos) << Result.Output;
}

TEST(LinuxQuitRequest, ALookThatWasChangedBeforeTheSignalIsSaved)
{
	FBusyProgram Busy("set 1 intensity 0.25");
	Busy.Send(SIGINT);
	Busy.Program.Wait();
	EXPECT_NE(Busy.ReadSettings().find("Intensity=0.250000"), std::string::npos) << Busy.ReadSettings();
}

TEST(LinuxQuitRequest, ALayoutComesBackAfterTheProcessWasKilled)
{
	FBusyProgram Busy("layout TwoPanesHoriz");
	Busy.Send(SIGKILL);
	EXPECT_EQ(Busy.Program.Wait().Code, 128 + SIGKILL);
	const FProgramResult Again = Busy.Run("--last-session --exec panes");
	EXPECT_NE(Again.Output.find("TwoPanesHoriz.Viewport 1.Viewport0"), std::string::npos) << Again.Output;
	EXPECT_EQ(Again.Output.find("FourPanes2x2.Viewport 1.Viewport0:"), std::string::npos) << Again.Output;
}

TEST(LinuxQuitRequest, AProjectWhoseEditorWasKilledIsNotBlocked)
{
	FBusyProgram Busy;
	Busy.Send(SIGKILL);
	Busy.Program.Wait();
	const FProgramResult Again = Busy.Run("--exec panes");
	EXPECT_EQ(Again.Output.find("is open in another"), std::string::npos) << Again.Output;
}

TEST(LinuxQuitRequest, ASecondEditorSaysThatItSavesNothingAndSavesNothing)
{
	FBusyProgram Busy;
	const std::string Before = Busy.ReadSettings();
	const FProgramResult Second = Busy.Run("--exec 'set 1 intensity 0.25; new-look Mine; notices'");
	EXPECT_EQ(Busy.ReadSettings(), Before);
	EXPECT_FALSE(std::filesystem::exists(Busy.Path("Project/Content/Looks/Mine.cube")));
	EXPECT_NE(Second.Output.find("is open in another Tintmill editor; this one shows it and saves nothing."), std::string::npos)
		<< Second.Output;
	EXPECT_NE(Second.Output.find("the project is open in another editor"), std::string::npos) << Second.Output;
	Busy.Send(SIGKILL);
}
}

// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AtomicFile.h"

#include "Misc/ConfigCacheIni.h"
#include "StandIn/Notices.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

#include <chrono>
#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// What only real processes and a real file system can show.

namespace
{
StandIn::EAtomicFileStep StepToDieAt;

bool DieAtStep(StandIn::EAtomicFileStep Step, const TCHAR*)
{
	if (Step == StepToDieAt)
	{
		raise(SIGKILL);
	}
	return true;
}

const int32 NumSavedLooks = 400;

/** Sets all values of the test file to one generation and saves. */
void SaveGeneration(FConfigCacheIni& Cache, const FString& FileName, int32 Generation)
{
	TArray<FString> Looks;
	for (int32 Index = 0; Index < NumSavedLooks; ++Index)
	{
		Looks.Add(
			FString::Printf(TEXT("(ViewportIdentifier=\"FourPanes2x2.Viewport %d.Viewport%d\",Generation=%d)"), Index, Index, Generation));
	}
	Cache.SetArray(TEXT("/Script/TintmillEditor.TintmillLevelViewportSettings"), TEXT("ViewportsSettings"), Looks, FileName);
	Cache.SetInt(TEXT("Test"), TEXT("Generation"), Generation, FileName);
	Cache.Flush(false, FileName);
}

/** Checks that a file holds one generation, whole; "" when it does. */
std::string DescribeDamage(const FString& FileName)
{
	FConfigFile File;
	File.Read(FileName);
	int32 Generation = 0;
	TArray<FString> Looks;
	File.GetInt(TEXT("Test"), TEXT("Generation"), Generation);
	File.GetArray(TEXT("/Script/TintmillEditor.TintmillLevelViewportSettings"), TEXT("ViewportsSettings"), Looks);
	if (Generation < 1 || Looks.Num() != NumSavedLooks)
	{
		return "generation " + std::to_string(Generation) + " with " + std::to_string(Looks.Num()) + " looks";
	}
	const FString Ending = FString::Printf(TEXT(",Generation=%d)"), Generation);
	for (const FString& Look : Looks)
	{
		if (!Look.EndsWith(Ending, ESearchCase::CaseSensitive))
		{
			return "generation " + std::to_string(Generation) + " with " + ToStd(Look);
		}
	}
	return "";
}

/** Starts a child that saves again and again; returns when it has saved once more. */
pid_t StartSavingChild(const FString& FileName, int32 FirstGeneration)
{
	int Pipe[2];
	EXPECT_EQ(0, pipe(Pipe));
	const pid_t Child = fork();
	if (Child == 0)
	{
		FConfigCacheIni* const Cache = new FConfigCacheIni();
		for (int32 Generation = FirstGeneration;; ++Generation)
		{
			SaveGeneration(*Cache, FileName, Generation);
			if (Generation == FirstGeneration && write(Pipe[1], "x", 1) != 1)
			{
				_exit(1);
			}
		}
	}
	char Ready = 0;
	close(Pipe[1]);
	EXPECT_EQ(1, read(Pipe[0], &Ready, 1));
	close(Pipe[0]);
	return Child;
}

void WaitUntil(std::chrono::steady_clock::time_point Moment)
{
	while (std::chrono::steady_clock::now() < Moment)
	{}
}

class LinuxAtomicFileStep : public testing::TestWithParam<StandIn::EAtomicFileStep>
{};
}

TEST(LinuxAtomicFile, SettingsAreWholeAfterTheProcessIsKilledAtARandomInstantOfASave)
{
	const FTestFolder Folder;
	const FString FileName = Folder.Path("Saved.ini");
	std::mt19937 Random(20210801);
	int32 NumWhole = 0;
	int32 NumKilledInASave = 0;
	for (int32 Round = 0; Round < 200; ++Round)
	{
		const pid_t Child = StartSavingChild(FileName, 1 + Round * 1000);
		WaitUntil(std::chrono::steady_clock::now() + std::chrono::microseconds(Random() % 6000));
		kill(Child, SIGKILL);
		int Status = 0;
		waitpid(Child, &Status, 0);
		ASSERT_TRUE(WIFSIGNALED(Status)) << "the child ended by itself in round " << Round;
		NumKilledInASave += Folder.List().size() > 1 ? 1 : 0;
		const std::string Damage = DescribeDamage(FileName);
		EXPECT_EQ("", Damage) << "in round " << Round;
		EXPECT_EQ(std::vector<std::string>({"Saved.ini"}), Folder.List()) << "in round " << Round;
		NumWhole += Damage.empty() ? 1 : 0;
	}
	EXPECT_EQ(200, NumWhole);
	EXPECT_GT(NumKilledInASave, 0) << "no kill fell between making the temporary and the replacement";
	RecordProperty("KilledInASave", NumKilledInASave);
	EXPECT_EQ(0, StandIn::GetNotices().Num());
}

TEST_P(LinuxAtomicFileStep, FileIsTheOldOrTheNewOneWhenTheProcessDiesThere)
{
	const FTestFolder Folder;
	const std::string Old(100000, 'o');
	const std::string New(150000, 'n');
	Folder.Write("a.ini", Old);
	const pid_t Child = fork();
	if (Child == 0)
	{
		FString Reason;
		StepToDieAt = GetParam();
		StandIn::SetAtomicFileHook(&DieAtStep);
		StandIn::SaveFileAtomically(Folder.Path("a.ini"), New.data(), int64(New.size()), Reason);
		_exit(0);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	EXPECT_TRUE(WIFSIGNALED(Status));
	EXPECT_EQ(GetParam() == StandIn::EAtomicFileStep::FlushFolder ? New : Old, Folder.Read("a.ini"));
	StandIn::SweepTemporaries(Folder.Path("a.ini"));
	EXPECT_EQ(std::vector<std::string>({"a.ini"}), Folder.List());
}

INSTANTIATE_TEST_SUITE_P(EachStep, LinuxAtomicFileStep,
	testing::Values(StandIn::EAtomicFileStep::CreateTemporary, StandIn::EAtomicFileStep::Write, StandIn::EAtomicFileStep::FlushFile,
		StandIn::EAtomicFileStep::Replace, StandIn::EAtomicFileStep::FlushFolder));

TEST(LinuxAtomicFile, DiskThatFillsUpDuringTheWriteLeavesTheOldFile)
{
	const FTestFolder Folder;
	Folder.Write("a.ini", "old");
	const std::string New(100000, 'n');
	const pid_t Child = fork();
	if (Child == 0)
	{
		FString Reason;
		signal(SIGXFSZ, SIG_IGN);
		const struct rlimit Limit = {70000, 70000};
		setrlimit(RLIMIT_FSIZE, &Limit);
		const bool bSaved = StandIn::SaveFileAtomically(Folder.Path("a.ini"), New.data(), int64(New.size()), Reason);
		_exit(!bSaved && Reason == TEXT("File too large") ? 0 : 1);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	EXPECT_EQ(0, WEXITSTATUS(Status));
	EXPECT_EQ("old", Folder.Read("a.ini"));
	EXPECT_EQ(std::vector<std::string>({"a.ini"}), Folder.List());
}

TEST(LinuxAtomicFile, SymbolicLinkStaysOneAndItsFileIsReplaced)
{
	const FTestFolder Folder;
	FString Reason;
	Folder.Write("dotfiles/real.ini", "old");
	std::filesystem::create_symlink("dotfiles/real.ini", Folder.NativePath("a.ini"));
	EXPECT_TRUE(StandIn::SaveFileAtomically(Folder.Path("a.ini"), "new", 3, Reason));
	EXPECT_TRUE(std::filesystem::is_symlink(Folder.NativePath("a.ini")));
	EXPECT_EQ("new", Folder.Read("dotfiles/real.ini"));
	EXPECT_EQ(std::vector<std::string>({"real.ini"}), Folder.List("dotfiles"));
}

TEST(LinuxAtomicFile, RightsOfTheOldFileAreKept)
{
	const FTestFolder Folder;
	FString Reason;
	Folder.Write("a.ini", "old");
	chmod(Folder.NativePath("a.ini").c_str(), 0640);
	EXPECT_TRUE(StandIn::SaveFileAtomically(Folder.Path("a.ini"), "new", 3, Reason));
	struct stat Found = {};
	stat(Folder.NativePath("a.ini").c_str(), &Found);
	EXPECT_EQ(0640u, Found.st_mode & 07777u);
}

TEST(LinuxAtomicFile, TemporaryOfALivingProcessIsNotSwept)
{
	const FTestFolder Folder;
	Folder.Write("a.ini.tmp-" + std::to_string(getppid()) + "-1", "half");
	EXPECT_EQ(0, StandIn::SweepTemporaries(Folder.Path("a.ini")));
}

// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AtomicFile.h"

#include "HAL/PlatformProcess.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

namespace
{
typedef std::vector<std::string> FNames;

StandIn::EAtomicFileStep StepToFail;

bool FailStep(StandIn::EAtomicFileStep Step, const TCHAR*)
{
	return Step != StepToFail;
}

/** Saves with a failure injected at one step; the reason, or "" for success. */
std::string SaveWithFailure(const FString& FileName, const std::string& Bytes, StandIn::EAtomicFileStep Step)
{
	FString Reason;
	StepToFail = Step;
	StandIn::SetAtomicFileHook(&FailStep);
	const bool bSaved = StandIn::SaveFileAtomically(FileName, Bytes.data(), int64(Bytes.size()), Reason);
	StandIn::SetAtomicFileHook(nullptr);
	EXPECT_EQ(bSaved, Reason.IsEmpty());
	return ToStd(Reason);
}

std::string Save(const FString& FileName, const std::string& Bytes)
{
	FString Reason;
	const bool bSaved = StandIn::SaveFileAtomically(FileName, Bytes.data(), int64(Bytes.size()), Reason);
	EXPECT_EQ(bSaved, Reason.IsEmpty());
	return ToStd(Reason);
}

class AtomicFileStep : public testing::TestWithParam<StandIn::EAtomicFileStep>
{};
}

TEST(AtomicFile, NewFileIsMade)
{
	const FTestFolder Folder;
	EXPECT_EQ("", Save(Folder.Path("a.ini"), "new"));
	EXPECT_EQ("new", Folder.Read("a.ini"));
}

TEST(AtomicFile, OldFileIsReplacedAndNothingElseIsLeft)
{
	const FTestFolder Folder;
	Folder.Write("a.ini", "old and longer");
	EXPECT_EQ("", Save(Folder.Path("a.ini"), "new"));
	EXPECT_EQ("new", Folder.Read("a.ini"));
	EXPECT_EQ(FNames({"a.ini"}), Folder.List());
}

TEST(AtomicFile, EmptyContentIsWritten)
{
	const FTestFolder Folder;
	Folder.Write("a.ini", "old");
	EXPECT_EQ("", Save(Folder.Path("a.ini"), ""));
	EXPECT_EQ("", Folder.Read("a.ini"));
}

TEST_P(AtomicFileStep, FailureBeforeTheReplacementLeavesTheOldFileAndNoTemporary)
{
	const FTestFolder Folder;
	Folder.Write("a.ini", "old");
	EXPECT_EQ("injected failure", SaveWithFailure(Folder.Path("a.ini"), "new", GetParam()));
	EXPECT_EQ("old", Folder.Read("a.ini"));
	EXPECT_EQ(FNames({"a.ini"}), Folder.List());
}

INSTANTIATE_TEST_SUITE_P(EachStep, AtomicFileStep,
	testing::Values(StandIn::EAtomicFileStep::CreateTemporary, StandIn::EAtomicFileStep::Write, StandIn::EAtomicFileStep::FlushFile,
		StandIn::EAtomicFileStep::Replace));

TEST(AtomicFile, FailureToFlushTheFolderIsReportedWithTheNewFileInPlace)
{
	const FTestFolder Folder;
	Folder.Write("a.ini", "old");
	EXPECT_NE("", SaveWithFailure(Folder.Path("a.ini"), "new", StandIn::EAtomicFileStep::FlushFolder));
	EXPECT_EQ("new", Folder.Read("a.ini"));
}

TEST(AtomicFile, ReadOnlyFileIsRefused)
{
	const FTestFolder Folder;
	Folder.Write("a.ini", "old");
	std::filesystem::permissions(Folder.NativePath("a.ini"), std::filesystem::perms::owner_read);
	EXPECT_EQ("the file is read-only", Save(Folder.Path("a.ini"), "new"));
	EXPECT_EQ("old", Folder.Read("a.ini"));
}

TEST(AtomicFile, MissingFolderFailsWithTheSystemsReason)
{
	const FTestFolder Folder;
	EXPECT_NE("", Save(Folder.Path("missing/a.ini"), "new"));
}

TEST(AtomicFile, FolderInTheFilesPlaceIsRefused)
{
	const FTestFolder Folder;
	Folder.Write("a.ini/inside", "kept");
	EXPECT_EQ("it is a folder", Save(Folder.Path("a.ini"), "new"));
	EXPECT_EQ("kept", Folder.Read("a.ini/inside"));
}

TEST(AtomicFile, NameBeyondAsciiWorks)
{
	const FTestFolder Folder;
	const FString Name = Folder.Path() + TEXT("/\u00e9\u2713.ini");
	EXPECT_EQ("", Save(Name, "new"));
	EXPECT_EQ(1u, Folder.List().size());
}

TEST(AtomicFile, SweepTakesTemporariesOfDeadProcesses)
{
	const FTestFolder Folder;
	Folder.Write("a.ini", "kept");
	Folder.Write("a.ini.tmp-999999999-1", "half");
	EXPECT_EQ(1, StandIn::SweepTemporaries(Folder.Path("a.ini")));
	EXPECT_EQ(FNames({"a.ini"}), Folder.List());
}

TEST(AtomicFile, SweepLeavesWhatItDidNotMake)
{
	const FTestFolder Folder;
	const FNames Names = {"a.ini.tmp", "a.ini.tmp-1-2-3", "a.ini.tmp-999999999", "a.ini.tmp-x-1", "ab.ini.tmp-999999999-1"};
	for (const std::string& Name : Names)
	{
		Folder.Write(Name, "mine");
	}
	EXPECT_EQ(0, StandIn::SweepTemporaries(Folder.Path("a.ini")));
	EXPECT_EQ(Names, Folder.List());
}

TEST(AtomicFile, SweepTakesOwnLeftOversThatAreNotBeingWritten)
{
	const FTestFolder Folder;
	Folder.Write("a.ini.tmp-" + std::to_string(FPlatformProcess::GetCurrentProcessId()) + "-999999", "half");
	EXPECT_EQ(1, StandIn::SweepTemporaries(Folder.Path("a.ini")));
}

TEST(AtomicFile, BelowARefusedFolderNothingIsSavedAndTheReasonIsGiven)
{
	const FTestFolder Folder;
	StandIn::RefuseSaves(Folder.Path(), TEXT("another editor has it open"));
	const std::string Reason = Save(Folder.Path("Saved/a.ini"), "new");
	StandIn::AllowSaves();
	EXPECT_EQ("another editor has it open", Reason);
	EXPECT_TRUE(Folder.List().empty());
}

TEST(AtomicFile, ARefusedFolderDoesNotRefuseOneThatStartsLikeIt)
{
	const FTestFolder Folder;
	Folder.Write("Project2/a.ini", "old");
	StandIn::RefuseSaves(Folder.Path("Project"), TEXT("another editor has it open"));
	EXPECT_EQ("", Save(Folder.Path("Project2/a.ini"), "new"));
	StandIn::AllowSaves();
}

TEST(AtomicFile, SavesWorkAgainOnceTheyAreAllowed)
{
	const FTestFolder Folder;
	StandIn::RefuseSaves(Folder.Path(), TEXT("another editor has it open"));
	StandIn::AllowSaves();
	EXPECT_EQ("", Save(Folder.Path("a.ini"), "new"));
}

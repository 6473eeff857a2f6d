// Copyright The Tintmill authors. All rights reserved.

#include "Misc/OutputDeviceFile.h"

#include "CoreGlobals.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

namespace
{
/** Prints without time stamps while it lives. */
class OutputDeviceFile : public testing::Test
{
protected:
	virtual void SetUp() override { GPrintLogTimes = ELogTimes::None; }
	virtual void TearDown() override { GPrintLogTimes = Before; }

	const ELogTimes::Type Before = GPrintLogTimes;
	FTestFolder Folder;
	const std::string LineEnd = PLATFORM_WINDOWS ? "\r\n" : "\n";
};
}

TEST_F(OutputDeviceFile, LinesAreWrittenInThePrintedFormAsUtf8)
{
	FOutputDeviceFile Device(*Folder.Path("Logs/Editor.log"));
	Device.Serialize(TEXT("caf\u00e9 \u2713"), ELogVerbosity::Warning, FName(TEXT("LogTemp")));
	Device.TearDown();
	EXPECT_EQ("LogTemp: Warning: caf\xc3\xa9 \xe2\x9c\x93" + LineEnd, Folder.Read("Logs/Editor.log"));
}

TEST_F(OutputDeviceFile, ExistingLogIsReplacedByDefault)
{
	Folder.Write("Editor.log", "old\n");
	FOutputDeviceFile Device(*Folder.Path("Editor.log"));
	Device.Serialize(TEXT("new"), ELogVerbosity::Log, NAME_None);
	Device.TearDown();
	EXPECT_EQ("new" + LineEnd, Folder.Read("Editor.log"));
}

TEST_F(OutputDeviceFile, ExistingLogIsContinuedWhenAsked)
{
	Folder.Write("Editor.log", "old\n");
	FOutputDeviceFile Device(*Folder.Path("Editor.log"), true, true);
	Device.Serialize(TEXT("new"), ELogVerbosity::Log, NAME_None);
	Device.TearDown();
	EXPECT_EQ("old\nnew" + LineEnd, Folder.Read("Editor.log"));
}

TEST_F(OutputDeviceFile, WarningIsOnDiskBeforeTheDeviceIsFlushed)
{
	FOutputDeviceFile Device(*Folder.Path("Editor.log"));
	Device.Serialize(TEXT("soon dead"), ELogVerbosity::Warning, NAME_None);
	EXPECT_EQ("Warning: soon dead" + LineEnd, Folder.Read("Editor.log"));
}

TEST_F(OutputDeviceFile, FileThatCannotBeMadeIsGivenUp)
{
	Folder.Write("Logs", "a file, not a folder");
	FOutputDeviceFile Device(*Folder.Path("Logs/Editor.log"));
	Device.Serialize(TEXT("lost"), ELogVerbosity::Log, NAME_None);
	EXPECT_FALSE(Device.IsOpened());
	EXPECT_EQ("a file, not a folder", Folder.Read("Logs"));
}

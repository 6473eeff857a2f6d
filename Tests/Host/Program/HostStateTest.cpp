// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostState.h"

#include "CoreGlobals.h"
#include "Misc/ConfigCacheIni.h"
#include "StandIn/Notices.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <optional>
#include <utility>

namespace
{
using namespace TintmillHost;

const FStateNumber Width{"WindowWidth", 200.0, 16384.0, 1280.0};

/** Settings and a clock of the test's own. */
class HostState : public testing::Test
{
protected:
	HostState()
		: FormerConfig(std::exchange(GConfig, nullptr))
		, FormerIni(GEditorPerProjectIni)
		, FormerClock(SetStateClock([this] { return Seconds; }))
	{
		GEditorPerProjectIni = Folder.Path("User.ini");
		Restart();
	}

	virtual ~HostState()
	{
		delete GConfig;
		GConfig = FormerConfig;
		GEditorPerProjectIni = FormerIni;
		SetStateClock(FormerClock);
		StandIn::ClearNotices();
	}

	/** Forgets what is in memory and reads the file, as a process does that starts after another was killed. */
	void Restart()
	{
		if (GConfig != nullptr)
		{
			GConfig->DisableFileOperations();
		}
		delete GConfig;
		GConfig = new FConfigCacheIni();
	}

	/** Starts on a file. */
	void StartOn(const std::string& Text)
	{
		Folder.Write("User.ini", Text);
		Restart();
	}

	std::string Saved() const
	{
		std::string Text = Folder.Read("User.ini");
		Text.erase(std::remove(Text.begin(), Text.end(), '\r'), Text.end());
		return Text;
	}

	FTestFolder Folder;
	double Seconds = 1000.0;

private:
	FConfigCacheIni* FormerConfig;
	FString FormerIni;
	std::function<double()> FormerClock;
};

TEST_F(HostState, ANumberIsItsDefaultUntilItIsSet)
{
	EXPECT_EQ(GetStateNumber(Width), 1280.0);
}

TEST_F(HostState, AChangeIsInTheFileAtOnce)
{
	SetStateNumber(Width, 1600.0);
	EXPECT_EQ(Saved(), "[TintmillHost]\nWindowWidth=1600\n\n");
}

TEST_F(HostState, WhatWasSetComesBackAfterTheProcessIsGone)
{
	SetStateNumber({"Splitter", 0.05, 0.95, 0.5}, 0.625);
	SetStateFlag("Maximized", true, false);
	SetStateText("Map", "/Game/Maps/Bühne", "");
	Restart();
	EXPECT_EQ(GetStateNumber({"Splitter", 0.05, 0.95, 0.5}), 0.625);
	EXPECT_TRUE(GetStateFlag("Maximized", false));
	EXPECT_EQ(GetStateText("Map", ""), "/Game/Maps/Bühne");
}

TEST_F(HostState, WhatIsNoNumberOrOutsideItsLimitsCountsAsTheDefault)
{
	for (const char* const Bad : {"nan", "-nan", "inf", "-5", "0", "1e300", "99999999999999999999", "12px", "", "1,5", "\"\"", "-0"})
	{
		StartOn(std::string("[TintmillHost]\nWindowWidth=") + Bad + "\n");
		EXPECT_EQ(GetStateNumber(Width), 1280.0) << Bad;
	}
}

TEST_F(HostState, ABadValueDoesNotTouchTheGoodOnesBesideIt)
{
	StartOn("[TintmillHost]\nWindowWidth=nan\nWindowHeight=900\n");
	EXPECT_EQ(GetStateNumber({"WindowHeight", 100.0, 16384.0, 720.0}), 900.0);
}

TEST_F(HostState, AFlagThatIsNeitherTrueNorFalseCountsAsTheDefault)
{
	StartOn("[TintmillHost]\nMaximized=perhaps\n");
	EXPECT_TRUE(GetStateFlag("Maximized", true));
	EXPECT_FALSE(GetStateFlag("Maximized", false));
}

TEST_F(HostState, AnUnknownWordCountsAsTheDefault)
{
	StartOn("[TintmillHost]\nBottomTab=Kitchen Sink\n");
	EXPECT_EQ(GetStateWord("BottomTab", {"Content Browser", "Output Log"}, "Content Browser"), "Content Browser");
}

TEST_F(HostState, AWordIsFoundInAnySpellingOfCase)
{
	StartOn("[TintmillHost]\nBottomTab=output log\n");
	EXPECT_EQ(GetStateWord("BottomTab", {"Content Browser", "Output Log"}, "Content Browser"), "Output Log");
}

TEST_F(HostState, ATextThatIsFarTooLongCountsAsTheDefault)
{
	StartOn("[TintmillHost]\nMap=" + std::string(5000, 'x') + "\n");
	EXPECT_EQ(GetStateText("Map", "none"), "none");
}

TEST_F(HostState, ANumberOutsideItsLimitsIsNotKept)
{
	for (const double Bad : {-1.0, 0.0, 1e300, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()})
	{
		SetStateNumber(Width, Bad);
	}
	EXPECT_FALSE(std::filesystem::exists(Folder.NativePath("User.ini")));
}

TEST_F(HostState, SettingWhatIsSetLeavesTheFileByteForByte)
{
	const std::string Text = "; mine\n[Other]\nA=1\n\n[TintmillHost]\nWindowWidth=1600.00\nMaximized=yes\nMap=Stage\n";
	StartOn(Text);
	SetStateNumber(Width, 1600.0);
	SetStateFlag("Maximized", false, false);
	SetStateText("Map", "Stage", "");
	FlushState();
	EXPECT_EQ(Saved(), Text);
}

TEST_F(HostState, SettingADefaultWritesNothing)
{
	SetStateNumber(Width, 1280.0);
	SetStateFlag("Maximized", false, false);
	SetStateText("Map", "", "");
	FlushState();
	EXPECT_FALSE(std::filesystem::exists(Folder.NativePath("User.ini")));
}

TEST_F(HostState, GoingBackToTheDefaultsLeavesTheFileAsItWas)
{
	const std::string Text = "[Other]\nA=1\n\n";
	StartOn(Text);
	SetStateNumber(Width, 1600.0);
	SetStateFlag("Maximized", true, false);
	SetStateNumber(Width, 1280.0);
	SetStateFlag("Maximized", false, false);
	EXPECT_EQ(Saved(), Text);
}

TEST_F(HostState, WhileDraggingItSavesOnceASecond)
{
	const FStateDrag Drag;
	SetStateNumber(Width, 1300.0);
	TickState();
	const std::string First = Saved();
	Seconds += 0.5;
	SetStateNumber(Width, 1400.0);
	TickState();
	const std::string Second = Saved();
	Seconds += 0.5;
	TickState();
	EXPECT_NE(First.find("WindowWidth=1300"), std::string::npos) << First;
	EXPECT_EQ(Second, First);
	EXPECT_NE(Saved().find("WindowWidth=1400"), std::string::npos) << Saved();
}

TEST_F(HostState, AllThatChangesInOneFrameOfADragIsSavedTogether)
{
	const FStateDrag Drag;
	SetStateNumber(Width, 1300.0);
	SetStateText("Map", "Stage", "");
	TickState();
	EXPECT_EQ(Saved(), "[TintmillHost]\nWindowWidth=1300\nMap=Stage\n\n");
}

TEST_F(HostState, TheEndOfADragSavesWhatWaited)
{
	{
		const FStateDrag Drag;
		SetStateNumber(Width, 1300.0);
		SetStateNumber(Width, 1400.0);
	}
	EXPECT_NE(Saved().find("WindowWidth=1400"), std::string::npos) << Saved();
}

TEST_F(HostState, AFailedSaveIsOneNoticeAndTheValueStaysInUse)
{
	GEditorPerProjectIni = Folder.Path("NoFolder/User.ini");
	Folder.Write("NoFolder", "a file in the way");
	SetStateNumber(Width, 1300.0);
	SetStateNumber(Width, 1400.0);
	EXPECT_EQ(StandIn::GetNotices().Num(), 1);
	EXPECT_EQ(GetStateNumber(Width), 1400.0);
}
}

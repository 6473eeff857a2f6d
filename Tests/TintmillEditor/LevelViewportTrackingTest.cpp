// Copyright The Tintmill authors. All rights reserved.

#include "Support/Printers.h"
#include "TintmillEditor/ModuleFixture.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "Slate/SceneViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/PlaySession.h"
#include "TintmillDisplayManager.h"
#include "TintmillObject.h"
#include "ToolMenu.h"
#include "ToolMenus.h"

#include <gtest/gtest.h>

#include <algorithm>

// How a pane's look outlives its client: restored when the pane comes, saved when it goes.

namespace
{
const FName OnePane(TEXT("OnePane"));
const FName FourPanes(TEXT("FourPanes2x2"));
const std::string OnePaneKey = "OnePane.Viewport 1.Viewport0";

std::string FourPaneKey(int Number)
{
	return "FourPanes2x2.Viewport 1.Viewport" + std::to_string(Number);
}

const TCHAR* const RestoredLine = TEXT("SetupViewportDisplaySettings");
const TCHAR* const SavedLine = TEXT("OnLevelViewportClientListChanged");

class FLevelViewportTracking : public FModuleFixture
{
protected:
	virtual void SetUp() override
	{
		WriteLook("Teal");
		WriteLook("Amber");
	}

	/** Fires the event of the list of level viewport clients without a change. */
	static void ReportListChange() { StandIn::BroadcastLevelViewportClientListChanged(); }

	/** Keeps the module from hearing of list changes, and gives what tells it of one. */
	static TMulticastDelegate<void()> TakeListEvent()
	{
		const TMulticastDelegate<void()> Event = GEditor->OnLevelViewportClientListChanged();
		GEditor->OnLevelViewportClientListChanged().RemoveAll(GetModule());
		return Event;
	}

	/** The clients of the panes, first to last; good for comparing when the panes are gone. */
	static std::vector<FViewportClient*> ListClients()
	{
		std::vector<FViewportClient*> Clients;
		for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
		{
			Clients.push_back(&Pane->GetLevelViewportClient());
		}
		return Clients;
	}

	/** Assembles the submenu of the active pane, as hovering its entry does. */
	static void OpenMenuOfTheActivePane()
	{
		UToolMenu* const Menu = UToolMenus::Get()->GenerateMenu(TEXT("LevelEditor.LevelViewportToolBar.View"), FToolMenuContext());
		UToolMenus::Get()->GenerateSubMenu(Menu, TEXT("TMLDisplaySubMenu"));
	}

	/** Calls back at every line of this text while it lives. */
	class FLineWatch
	{
	public:
		FLineWatch(const TCHAR* Text, const TFunction<void()>& Seen)
			: Handle(StandIn::OnLogRecord().AddLambda([Text, Seen](const StandIn::FLogRecord& Record) {
				if (FString(Record.Text) == Text)
				{
					Seen();
				}
			}))
		{}
		~FLineWatch() { StandIn::OnLogRecord().Remove(Handle); }
		FLineWatch(const FLineWatch&) = delete;
		FLineWatch& operator=(const FLineWatch&) = delete;

	private:
		FDelegateHandle Handle;
	};

	/** Changes what a pane displays, as its menu does. */
	static void Display(int32 Number, bool bEnable, float Intensity)
	{
		FTintmillDisplayConfiguration& Record = GetDisplayManager().FindOrAddDisplayConfiguration(GetClient(Number));
		Record.bEnableDisplay = bEnable;
		Record.Intensity = Intensity;
	}
};

TEST_F(FLevelViewportTracking, AnEventWithoutPanesWritesNothing)
{
	InitEngine();
	ReportListChange();
	EXPECT_TRUE(ReadSettings().empty());
	EXPECT_TRUE(Log.InCategory(TEXT("LogTemp")).empty());
}

TEST_F(FLevelViewportTracking, AllOfFourSavedPanesAreRestored)
{
	WriteSettings({MakePair(FourPaneKey(0), true, "0.100000", "Teal"), MakePair(FourPaneKey(1), true, "0.200000", "Amber"),
		MakePair(FourPaneKey(2), false, "0.300000", "Teal"), MakePair(FourPaneKey(3), true, "0.400000", "")});
	StartEditor(FourPanes);
	std::vector<std::string> Found;
	for (int32 Number = 0; Number < 4; ++Number)
	{
		const FTintmillDisplayConfiguration* const Record = FindRecord(Number);
		Found.push_back(MakePair(FourPaneKey(Number), Record->bEnableDisplay, std::to_string(Record->Intensity), LookName(Record)));
	}
	EXPECT_EQ(Found, ReadSettings());
}

TEST_F(FLevelViewportTracking, ASingleSavedPaneIsRestored)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "Teal")});
	StartEditor(OnePane);
	EXPECT_EQ(LookName(FindRecord(0)), "Teal");
}

TEST_F(FLevelViewportTracking, ARestoredPaneLogsItsLineOnce)
{
	WriteSettings({MakePair(OnePaneKey, true, "1.000000", "")});
	StartEditor(OnePane);
	EXPECT_EQ(Log.Count(RestoredLine), 1);
}

TEST_F(FLevelViewportTracking, TheLineOfARestoredPaneIsAWarningOfTheTemporaryCategory)
{
	WriteSettings({MakePair(OnePaneKey, true, "1.000000", "")});
	StartEditor(OnePane);
	const std::vector<FCapturedLog::FLine> Lines = Log.InCategory(TEXT("LogTemp"));
	ASSERT_EQ(Lines.size(), 1u);
	EXPECT_EQ(Lines[0].Verbosity, ELogVerbosity::Warning);
	EXPECT_EQ(Lines[0].Text, FString(RestoredLine));
}

TEST_F(FLevelViewportTracking, TheLineOfARestoredPaneStandsOnLine293OfTheModulesSource)
{
	WriteSettings({MakePair(OnePaneKey, true, "1.000000", "")});
	StartEditor(OnePane);
	const std::vector<FCapturedLog::FLine> Lines = Log.InCategory(TEXT("LogTemp"));
	ASSERT_EQ(Lines.size(), 1u);
	EXPECT_EQ(std::filesystem::path(Lines[0].File).filename(), "TintmillEditorModule.cpp");
	EXPECT_EQ(Lines[0].Line, 293);
}

TEST_F(FLevelViewportTracking, EveryRestoredPaneLogsALine)
{
	WriteSettings({MakePair(FourPaneKey(0), true, "1.000000", ""), MakePair(FourPaneKey(1), false, "1.000000", ""),
		MakePair(FourPaneKey(2), true, "1.000000", "Teal"), MakePair(FourPaneKey(3), false, "1.000000", "Teal")});
	StartEditor(FourPanes);
	EXPECT_EQ(Log.Count(RestoredLine), 4);
}

TEST_F(FLevelViewportTracking, PanesThatAppearedTogetherAreRestoredInTheEditorsOrder)
{
	WriteSettings({MakePair(FourPaneKey(3), true, "1.000000", ""), MakePair(FourPaneKey(2), true, "1.000000", ""),
		MakePair(FourPaneKey(1), true, "1.000000", ""), MakePair(FourPaneKey(0), true, "1.000000", "")});
	StartEditor(OnePane);
	const TMulticastDelegate<void()> Event = TakeListEvent();
	StandIn::SetViewportLayout(FourPanes);
	// At each line, which panes display a look's place by now.
	std::string Restored;
	const FLineWatch Watch(RestoredLine, [&] {
		for (int32 Number = 0; Number < 4; ++Number)
		{
			Restored += FindRecord(Number) && FindRecord(Number)->bEnableDisplay ? std::to_string(Number) : "";
		}
		Restored += ' ';
	});
	Event.Broadcast();
	EXPECT_EQ(Restored, "0 01 012 0123 ");
}

TEST_F(FLevelViewportTracking, PanesThatAppearWhileOthersAreRestoredDisturbNothing)
{
	WriteSettings({MakePair(FourPaneKey(0), true, "1.000000", ""), MakePair(FourPaneKey(1), true, "1.000000", ""),
		MakePair(FourPaneKey(2), true, "1.000000", ""), MakePair(FourPaneKey(3), true, "1.000000", "")});
	StartEditor(OnePane);
	const TMulticastDelegate<void()> Event = TakeListEvent();
	StandIn::SetViewportLayout(FourPanes);
	bool bOpened = false;
	const FLineWatch Watch(RestoredLine, [&] {
		if (!bOpened)
		{
			bOpened = true;
			StandIn::OpenViewportTab(2, FourPanes);
			StandIn::OpenViewportTab(3, FourPanes);
		}
	});
	Event.Broadcast();
	EXPECT_TRUE(FindRecord(3)->bEnableDisplay);
	EXPECT_TRUE(Log.InCategory(TEXT("LogOutputDevice")).empty());
}

TEST_F(FLevelViewportTracking, TheLineOfADepartedPaneIsAWarningOfTheTemporaryCategory)
{
	WriteSettings({MakePair(OnePaneKey, true, "1.000000", "")});
	StartEditor(OnePane);
	Log.Clear();
	StandIn::CloseLevelEditor();
	const std::vector<FCapturedLog::FLine> Lines = Log.InCategory(TEXT("LogTemp"));
	ASSERT_EQ(Lines.size(), 1u);
	EXPECT_EQ(Lines[0].Verbosity, ELogVerbosity::Warning);
	EXPECT_EQ(Lines[0].Text, FString(SavedLine));
}

TEST_F(FLevelViewportTracking, TheLineOfADepartedPaneStandsOnLine223OfTheModulesSource)
{
	WriteSettings({MakePair(OnePaneKey, true, "1.000000", "")});
	StartEditor(OnePane);
	Log.Clear();
	StandIn::CloseLevelEditor();
	const std::vector<FCapturedLog::FLine> Lines = Log.InCategory(TEXT("LogTemp"));
	ASSERT_EQ(Lines.size(), 1u);
	EXPECT_EQ(std::filesystem::path(Lines[0].File).filename(), "TintmillEditorModule.cpp");
	EXPECT_EQ(Lines[0].Line, 223);
}

TEST_F(FLevelViewportTracking, APaneThatWasNeverSavedGetsADefaultRecord)
{
	StartEditor(OnePane);
	const FTintmillDisplayConfiguration* const Record = FindRecord(0);
	ASSERT_NE(Record, nullptr);
	EXPECT_FALSE(Record->bEnableDisplay);
	EXPECT_FLOAT_EQ(Record->Intensity, 1.0f);
	EXPECT_EQ(Record->LookAsset, nullptr);
}

TEST_F(FLevelViewportTracking, APaneWithoutAViewportYetIsNotSaved)
{
	StartEditor(OnePane);
	EXPECT_TRUE(ReadSettings().empty());
}

TEST_F(FLevelViewportTracking, APaneThatWasNeverSavedIsSavedAtTheNextListChange)
{
	StartEditor(OnePane);
	ReportListChange();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair(OnePaneKey, false, "1.000000", "")});
}

TEST_F(FLevelViewportTracking, WhatANeverSavedPaneDisplaysByThenIsWhatTheSettingsLearn)
{
	StartEditor(OnePane);
	Display(0, true, 0.5f);
	ReportListChange();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair(OnePaneKey, true, "0.500000", "")});
}

TEST_F(FLevelViewportTracking, LearningAPaneLogsNothing)
{
	StartEditor(OnePane);
	ReportListChange();
	EXPECT_TRUE(Log.InCategory(TEXT("LogTemp")).empty());
}

TEST_F(FLevelViewportTracking, OfFourNewPanesTheEarlierAreSavedWhileTheLaterAreMade)
{
	StartEditor(FourPanes);
	EXPECT_EQ(ReadSettings(),
		(std::vector<std::string>{MakePair(FourPaneKey(0), false, "1.000000", ""), MakePair(FourPaneKey(1), false, "1.000000", ""),
			MakePair(FourPaneKey(2), false, "1.000000", "")}));
}

TEST_F(FLevelViewportTracking, ASecondEventForTheSameClientChangesNothing)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "Teal")});
	StartEditor(OnePane);
	Display(0, false, 1.0f);
	Log.Clear();
	ReportListChange();
	EXPECT_FALSE(FindRecord(0)->bEnableDisplay);
	EXPECT_FLOAT_EQ(FindRecord(0)->Intensity, 1.0f);
	EXPECT_TRUE(Log.InCategory(TEXT("LogTemp")).empty());
}

TEST_F(FLevelViewportTracking, AChangeIsNotSavedByItself)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "")});
	StartEditor(OnePane);
	Display(0, false, 1.0f);
	ReportListChange();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair(OnePaneKey, true, "0.500000", "")});
}

TEST_F(FLevelViewportTracking, ADepartedPaneIsSavedAtOnce)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "")});
	StartEditor(OnePane);
	Display(0, false, 0.25f);
	StandIn::CloseLevelEditor();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair(OnePaneKey, false, "0.250000", "")});
}

TEST_F(FLevelViewportTracking, ADepartedPanesRecordIsDropped)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "")});
	StartEditor(OnePane);
	const FViewportClient* const Client = GetClient(0);
	StandIn::CloseLevelEditor();
	EXPECT_EQ(GetDisplayManager().GetDisplayConfiguration(Client), nullptr);
}

TEST_F(FLevelViewportTracking, ADepartedPaneWithoutARecordLeavesNoTrace)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "")});
	StartEditor(OnePane);
	GetDisplayManager().RemoveDisplayConfiguration(GetClient(0));
	Log.Clear();
	StandIn::CloseLevelEditor();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair(OnePaneKey, true, "0.500000", "")});
	EXPECT_TRUE(Log.InCategory(TEXT("LogTemp")).empty());
}

TEST_F(FLevelViewportTracking, ADepartedPaneWithoutARecordIsForgotten)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "")});
	StartEditor(OnePane);
	FViewportClient* const Client = GetClient(0);
	GetDisplayManager().RemoveDisplayConfiguration(Client);
	StandIn::CloseLevelEditor();
	// Whoever gets a record under that address later is somebody else.
	GetDisplayManager().FindOrAddDisplayConfiguration(Client).Intensity = 0.125f;
	ReportListChange();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair(OnePaneKey, true, "0.500000", "")});
	EXPECT_TRUE(GetDisplayManager().RemoveDisplayConfiguration(Client));
}

TEST_F(FLevelViewportTracking, EveryDepartedPaneWithARecordLogsALine)
{
	WriteSettings({MakePair(FourPaneKey(0), true, "1.000000", ""), MakePair(FourPaneKey(1), true, "1.000000", ""),
		MakePair(FourPaneKey(2), true, "1.000000", ""), MakePair(FourPaneKey(3), true, "1.000000", "")});
	StartEditor(FourPanes);
	StandIn::CloseLevelEditor();
	EXPECT_EQ(Log.Count(SavedLine), 4);
}

TEST_F(FLevelViewportTracking, PanesThatDepartedTogetherAreSavedInTheOrderInWhichTheyWereTracked)
{
	StartEditor(FourPanes);
	ReportListChange();
	const std::vector<FViewportClient*> Clients = ListClients();
	// At each line, which clients still have a record.
	std::string Remaining;
	const FLineWatch Watch(SavedLine, [&] {
		for (size_t Index = 0; Index < Clients.size(); ++Index)
		{
			Remaining += GetDisplayManager().GetDisplayConfiguration(Clients[Index]) ? std::to_string(Index) : "";
		}
		Remaining += ' ';
	});
	const TMulticastDelegate<void()> Event = TakeListEvent();
	StandIn::CloseLevelEditor();
	Event.Broadcast();
	EXPECT_EQ(Remaining, "123 23 3  ");
}

TEST_F(FLevelViewportTracking, PanesThatDepartedTogetherAreSavedOneByOneEachBeforeItsLine)
{
	StartEditor(FourPanes);
	ReportListChange();
	for (int32 Number = 0; Number < 4; ++Number)
	{
		Display(Number, true, 0.25f);
	}
	// At each line, how many panes the file has as they were left.
	std::string Saved;
	const FLineWatch Watch(SavedLine, [&] {
		const std::vector<std::string> Pairs = ReadSettings();
		Saved += std::to_string(std::count_if(
			Pairs.begin(), Pairs.end(), [](const std::string& Pair) { return Pair.find("Intensity=0.250000") != std::string::npos; }));
	});
	const TMulticastDelegate<void()> Event = TakeListEvent();
	StandIn::CloseLevelEditor();
	Event.Broadcast();
	EXPECT_EQ(Saved, "1234");
}

TEST_F(FLevelViewportTracking, PanesThatDepartedTogetherCauseALineEach)
{
	StartEditor(FourPanes);
	ReportListChange();
	const TMulticastDelegate<void()> Event = TakeListEvent();
	StandIn::CloseLevelEditor();
	Event.Broadcast();
	EXPECT_EQ(Log.Count(SavedLine), 4);
}

TEST_F(FLevelViewportTracking, APaneComesBackAsItsPredecessorLeft)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "Teal")});
	StartEditor(OnePane);
	Display(0, false, 0.25f);
	StandIn::SetViewportLayout(FourPanes);
	StandIn::SetViewportLayout(OnePane);
	EXPECT_FALSE(FindRecord(0)->bEnableDisplay);
	EXPECT_FLOAT_EQ(FindRecord(0)->Intensity, 0.25f);
	EXPECT_EQ(LookName(FindRecord(0)), "Teal");
}

TEST_F(FLevelViewportTracking, APanesLookIsThereAgainInTheNextRun)
{
	StartEditor(OnePane);
	ReportListChange();
	Display(0, true, 0.75f);
	ExitEditor();
	StartEditor(OnePane);
	EXPECT_TRUE(FindRecord(0)->bEnableDisplay);
	EXPECT_FLOAT_EQ(FindRecord(0)->Intensity, 0.75f);
}

TEST_F(FLevelViewportTracking, ARunWithoutChangesLeavesTheSettingsFileAsItWas)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "Teal"), MakePair("Elsewhere", false, "1.000000", "Amber")});
	const std::vector<std::string> Before = ReadSettings();
	StartEditor(OnePane);
	ExitEditor();
	EXPECT_EQ(ReadSettings(), Before);
}

TEST_F(FLevelViewportTracking, AClientWithoutAPaneIsLeftAlone)
{
	StartEditor(OnePane);
	const FLevelEditorViewportClient Client{TSharedPtr<SLevelViewport>()};
	EXPECT_EQ(GetDisplayManager().GetDisplayConfiguration(&Client), nullptr);
}

TEST_F(FLevelViewportTracking, AClientThatGetsItsPaneLaterIsRestoredAtTheNextListChange)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "Teal")});
	InitEngine();
	FLevelEditorViewportClient Client{TSharedPtr<SLevelViewport>()};
	StandIn::OpenLevelEditor(OnePane, NAME_None);
	Client.SetEditorViewportWidget(TWeakPtr<SEditorViewport>(GetPane(0)));
	ReportListChange();
	EXPECT_EQ(LookName(GetDisplayManager().GetDisplayConfiguration(&Client)), "Teal");
	StandIn::CloseLevelEditor();
}

TEST_F(FLevelViewportTracking, APaneThatItsMenuTracksFirstIsNotGivenItsSavedLook)
{
	WriteSettings({MakePair("TwoPanesVert.Viewport 1.Viewport0", true, "0.500000", "Teal")});
	StartEditor(OnePane);
	const TMulticastDelegate<void()> Event = TakeListEvent();
	StandIn::SetViewportLayout(TEXT("TwoPanesVert"));
	StandIn::ActivatePane(TEXT("TwoPanesVert.Viewport 1.Viewport0"));
	OpenMenuOfTheActivePane();
	Event.Broadcast();
	EXPECT_EQ(LookName(FindRecord(0)), "");
	EXPECT_EQ(Log.Count(RestoredLine), 0);
}

TEST_F(FLevelViewportTracking, APaneThatItsMenuTracksIsSavedUnderItsKeyWhenItDeparts)
{
	StartEditor(OnePane);
	OpenMenuOfTheActivePane();
	Display(0, true, 0.5f);
	StandIn::CloseLevelEditor();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair(OnePaneKey, true, "0.500000", "")});
}

TEST_F(FLevelViewportTracking, AMenuOfATrackedPaneDoesNotLookForItInTheEditorsList)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "Teal")});
	StartEditor(OnePane);
	FLevelEditorViewportClient& Client = GetPane(0)->GetLevelViewportClient();
	TakeListEvent();
	GEditor->RemoveLevelViewportClients(&Client);
	OpenMenuOfTheActivePane();
	GEditor->AddLevelViewportClients(&Client);
	EXPECT_EQ(LookName(FindRecord(0)), "Teal");
}

TEST_F(FLevelViewportTracking, AMenuThatTracksItsPaneSavesAndLogsNothing)
{
	StartEditor(OnePane);
	OpenMenuOfTheActivePane();
	EXPECT_TRUE(ReadSettings().empty());
	EXPECT_TRUE(Log.InCategory(TEXT("LogTemp")).empty());
}

TEST_F(FLevelViewportTracking, AClientThatTheRuntimeModuleKnowsAlreadyIsStillRestored)
{
	WriteSettings({MakePair(OnePaneKey, true, "0.500000", "Teal")});
	StartEditor(OnePane);
	EXPECT_EQ(&GetDisplayManager().FindOrAddDisplayConfiguration(GetClient(0)), FindRecord(0));
	EXPECT_EQ(LookName(FindRecord(0)), "Teal");
}
}

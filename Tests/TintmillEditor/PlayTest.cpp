// Copyright The Tintmill authors. All rights reserved.

#include "Support/MenuUser.h"
#include "Support/Printers.h"
#include "TintmillEditor/PlayFixture.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "Slate/SceneViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/ObjectSystem.h"
#include "StandIn/PlaySession.h"
#include "StandIn/Registrations.h"
#include "TintmillDisplayManager.h"
#include "TintmillObject.h"
#include "ToolMenus.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <set>

// How the look of the pane from which play is started comes to the game's viewport, and what play leaves behind.

namespace
{
const FName OnePane(TEXT("OnePane"));
const FName FourPanes(TEXT("FourPanes2x2"));
const FName ViewMenu(TEXT("LevelEditor.LevelViewportToolBar.View"));

class FPlay : public FPlayFixture
{
protected:
	virtual void SetUp() override { StartEditor(FourPanes); }

	/** Tells that a game viewport was created, as others than play may do. */
	static void ReportGameViewport() { UGameViewportClient::OnViewportCreated().Broadcast(); }

	/** Changes a pane when play has been asked for and its source is known, before there is a game viewport. */
	static auto WhenPlayBegins(TFunction<void()> Change)
	{
		return TWhenever<FEditorDelegates::FOnPIEEvent>(FEditorDelegates::BeginPIE, [Change](const bool) { Change(); });
	}

	/** Does something with the game's client before the module hears of its viewport: bindings run last added first. */
	static auto BeforeTheModuleHears(TFunction<void(FViewportClient*)> Act)
	{
		return TWhenever<FSimpleMulticastDelegate>(UGameViewportClient::OnViewportCreated(), [Act]() { Act(GetGameClient()); });
	}
};

TEST_F(FPlay, InAPaneGivesTheGameAnIdenticalRecord)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, InAWindowGivesTheGameAnIdenticalRecord)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInWindow(1);
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, SimulatedGivesTheGameAnIdenticalRecord)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1, EPlaySessionWorldType::SimulateInEditor);
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, CarriesALookThatIsSwitchedOffOverAsItIs)
{
	Display(1, false, 0.25f, TEXT("Amber"));
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "off 0.25 Amber");
}

TEST_F(FPlay, GivesEveryGameViewportOfASessionTheLook)
{
	SetPlayers(3);
	Display(1, true, 0.5f, TEXT("Teal"));
	std::vector<FViewportClient*> Clients;
	const auto Note = BeforeTheModuleHears([&Clients](FViewportClient* Client) { Clients.push_back(Client); });
	PlayInPane(1);
	ASSERT_EQ(Clients.size(), 3u);
	EXPECT_EQ(Describe(Clients[0]) + ", " + Describe(Clients[1]) + ", " + Describe(Clients[2]), "on 0.5 Teal, on 0.5 Teal, on 0.5 Teal");
}

TEST_F(FPlay, CarriesNothingOverWithoutALook)
{
	Display(1, true, 0.25f, TEXT(""));
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), Defaults);
}

TEST_F(FPlay, CarriesNothingOverWithoutALookInAWindowEither)
{
	Display(1, true, 0.25f, TEXT(""));
	PlayInWindow(1);
	EXPECT_EQ(DescribeGame(), Defaults);
}

TEST_F(FPlay, FromAPaneWithoutALookAfterOneWithALookCarriesNothingOver)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	// Kept, so that the next client lies elsewhere: a record goes by its client's address.
	UGameViewportClient* const First = GEditor->GameViewport;
	First->AddToRoot();
	EndPlay();
	PlayInPane(2);
	First->RemoveFromRoot();
	EXPECT_EQ(DescribeGame(), Defaults);
}

TEST_F(FPlay, LooksAtThePaneThatIsActiveNotAtTheOneItIsShownIn)
{
	Display(1, true, 1.0f, TEXT("Teal"));
	Display(2, true, 1.0f, TEXT("Amber"));
	Activate(2);
	FRequestPlaySessionParams Params;
	Params.DestinationSlateViewport = TWeakPtr<IAssetViewport>(GetPane(1));
	GEditor->RequestPlaySession(Params);
	EngineLoop->Tick();
	EXPECT_EQ(DescribeGame(), "on 1 Amber");
}

TEST_F(FPlay, StartedAgainFromAnotherPaneTakesThatPanesLook)
{
	Display(1, true, 1.0f, TEXT("Teal"));
	Display(2, true, 0.75f, TEXT("Amber"));
	PlayInPane(1);
	EndPlay();
	PlayInPane(2);
	EXPECT_EQ(DescribeGame(), "on 0.75 Amber");
}

TEST_F(FPlay, RequestedDuringPlayTakesThePanesLookAgain)
{
	Display(1, true, 1.0f, TEXT("Teal"));
	PlayInPane(1);
	Display(1, true, 0.125f, TEXT("Amber"));
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "on 0.125 Amber");
}

TEST_F(FPlay, ReadsTheSourceWhenTheGameViewportIsThereNotWhenPlayBegins)
{
	Display(1, true, 1.0f, TEXT("Teal"));
	const auto Change = WhenPlayBegins([]() { Display(1, false, 0.5f, TEXT("Amber")); });
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "off 0.5 Amber");
}

TEST_F(FPlay, CarriesALookOverThatWasChosenWhilePlayBegan)
{
	const auto Change = WhenPlayBegins([]() { Display(1, true, 0.5f, TEXT("Amber")); });
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "on 0.5 Amber");
}

TEST_F(FPlay, CarriesNothingOverOfALookThatWasTakenAwayWhilePlayBegan)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	const auto Change = WhenPlayBegins([]() { Display(1, true, 0.5f, TEXT("")); });
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), Defaults);
}

TEST_F(FPlay, ReadsTheSourceAnewForALaterGameViewport)
{
	Display(1, true, 1.0f, TEXT("Teal"));
	PlayInPane(1);
	Display(1, true, 0.5f, TEXT("Amber"));
	ReportGameViewport();
	EXPECT_EQ(DescribeGame(), "on 0.5 Amber");
}

TEST_F(FPlay, KeepsReadingTheRightSourceWhileManyRecordsAreAdded)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	static char Addresses[1000];
	const auto AddRecords = WhenPlayBegins([]() {
		for (char& Address : Addresses)
		{
			GetDisplayManager().FindOrAddDisplayConfiguration(reinterpret_cast<FViewportClient*>(&Address));
		}
	});
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, GivesTheGameACopy)
{
	Display(1, true, 1.0f, TEXT("Teal"));
	PlayInPane(1);
	Display(1, false, 0.5f, TEXT("Amber"));
	EXPECT_EQ(DescribeGame(), "on 1 Teal");
}

TEST_F(FPlay, LeavesThePanesAsTheyAre)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	Display(2, true, 0.25f, TEXT(""));
	const std::string Before = DescribePanes();
	PlayInPane(1);
	GetDisplayManager().FindOrAddDisplayConfiguration(GetGameClient()).Intensity = 0.75f;
	EndPlay();
	EXPECT_EQ(DescribePanes(), Before);
}

TEST_F(FPlay, WritesNothingIntoTheSettings)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	StandIn::BroadcastLevelViewportClientListChanged();
	const std::vector<std::string> Before = ReadSettings();
	PlayInPane(1);
	EndPlay();
	PlayInWindow(2);
	EndPlay();
	EXPECT_EQ(ReadSettings(), Before);
}

TEST_F(FPlay, LogsNothingOfItsOwn)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	Log.Clear();
	PlayInPane(1);
	EndPlay();
	EXPECT_TRUE(Log.InCategory(TEXT("LogTemp")).empty());
}

TEST_F(FPlay, LeavesATargetWithARecordAsItIsWhenTheSourceHasNoLook)
{
	Display(1, true, 0.25f, TEXT(""));
	const auto Give = BeforeTheModuleHears([](FViewportClient* Client) {
		GetDisplayManager().FindOrAddDisplayConfiguration(Client).LookAsset = LoadLook(TEXT("Amber"));
		GetDisplayManager().FindOrAddDisplayConfiguration(Client).Intensity = 0.75f;
	});
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "off 0.75 Amber");
}

TEST_F(FPlay, OverwritesATargetWithARecordWhenTheSourceHasALook)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	const auto Give = BeforeTheModuleHears(
		[](FViewportClient* Client) { GetDisplayManager().FindOrAddDisplayConfiguration(Client).LookAsset = LoadLook(TEXT("Amber")); });
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, NeverRemovesTheGamesRecord)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	const FViewportClient* const Client = GetGameClient();
	EndPlay();
	EXPECT_EQ(Describe(Client), "on 0.5 Teal");
}

TEST_F(FPlay, KeepsTheGamesRecordOverLaterListChangesToo)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	const FViewportClient* const Client = GetGameClient();
	EndPlay();
	StandIn::SetViewportLayout(OnePane);
	EXPECT_EQ(Describe(Client), "on 0.5 Teal");
}

TEST_F(FPlay, AddsADefaultRecordForAnActiveViewportThatHasNone)
{
	GetDisplayManager().RemoveDisplayConfiguration(GetClient(1));
	PlayInPane(1);
	EXPECT_EQ(Describe(GetClient(1)), Defaults);
}

TEST_F(FPlay, StoppedByACheckLeavesThePanesAsTheyAre)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	const std::string Before = DescribePanes();
	StandIn::SetPlayCheck([]() { return false; });
	PlayInPane(1);
	EXPECT_EQ(DescribePanes(), Before);
}

TEST_F(FPlay, StoppedByACheckIsForgottenByTheNextPlay)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	Display(2, true, 0.25f, TEXT("Amber"));
	StandIn::SetPlayCheck([]() { return false; });
	PlayInPane(1);
	StandIn::SetPlayCheck(TFunction<bool()>());
	PlayInPane(2);
	EXPECT_EQ(DescribeGame(), "on 0.25 Amber");
}

TEST_F(FPlay, ThatWasTakenBackCarriesNothingOver)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	Activate(1);
	GEditor->RequestPlaySession(FRequestPlaySessionParams());
	GEditor->CancelRequestPlaySession();
	EngineLoop->Tick();
	EXPECT_EQ(GEditor->GetPIEViewport(), nullptr);
}

TEST_F(FPlay, ThatFailsToStartLeavesThePanesAsTheyAre)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	const std::string Before = DescribePanes();
	StandIn::SetGameInstanceCheck([](int32) { return false; });
	PlayInPane(1);
	EXPECT_EQ(DescribePanes(), Before);
}

TEST_F(FPlay, WorksAfterOneThatFailedToStart)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	StandIn::SetGameInstanceCheck([](int32) { return false; });
	PlayInPane(1);
	StandIn::SetGameInstanceCheck(TFunction<bool(int32)>());
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, GivesTheGamesThatComeUpTheLookWhenOthersFail)
{
	SetPlayers(3);
	Display(1, true, 0.5f, TEXT("Teal"));
	StandIn::SetGameInstanceCheck([](int32 Instance) { return Instance != 1; });
	int32 Created = 0;
	const auto Count = BeforeTheModuleHears([&Created](FViewportClient*) { ++Created; });
	PlayInPane(1);
	EXPECT_EQ(std::to_string(Created) + " " + DescribeGame(), "2 on 0.5 Teal");
}

TEST_F(FPlay, AGameViewportWithoutACapturedSourceGetsNoRecord)
{
	UGameViewportClient* const Client = NewObject<UGameViewportClient>(GEditor);
	FSceneViewport Viewport(Client, nullptr);
	Client->SetViewportFrame(&Viewport);
	GEditor->GameViewport = Client;
	ReportGameViewport();
	GEditor->GameViewport = nullptr;
	Client->SetViewportFrame(nullptr);
	EXPECT_EQ(Describe(Client), "nothing");
}

TEST_F(FPlay, AGameViewportBeforeAnyPlayChangesNoPane)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	const std::string Before = DescribePanes();
	ReportGameViewport();
	EXPECT_EQ(DescribePanes(), Before);
}

TEST_F(FPlay, AGameViewportWithoutAPlayViewportChangesNoPane)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	const std::string Before = DescribePanes();
	PlayInPane(1);
	EndPlay();
	ReportGameViewport();
	EXPECT_EQ(DescribePanes(), Before);
}

TEST_F(FPlay, AGameClientWithoutAViewportGetsNoRecord)
{
	PlayInPane(1);
	EndPlay();
	UGameViewportClient* const Client = NewObject<UGameViewportClient>(GEditor);
	GetDisplayManager().RemoveDisplayConfiguration(Client);
	GEditor->GameViewport = Client;
	ReportGameViewport();
	GEditor->GameViewport = nullptr;
	EXPECT_EQ(Describe(Client), "nothing");
}

class FPlayEvent : public FPlay, public testing::WithParamInterface<bool>
{};

TEST_P(FPlayEvent, ThatPlayHasStartedChangesNothing)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	Display(1, true, 0.25f, TEXT("Amber"));
	const std::string Before = DescribePanes() + DescribeGame();
	const int32 RegistrationsBefore = StandIn::ListRegistrations().Num();
	FEditorDelegates::PostPIEStarted.Broadcast(GetParam());
	EXPECT_EQ(DescribePanes() + DescribeGame(), Before);
	EXPECT_EQ(StandIn::ListRegistrations().Num(), RegistrationsBefore);
}

TEST_P(FPlayEvent, OfAnotherStartOfPlayAloneCapturesTheActiveViewport)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	Display(2, true, 0.25f, TEXT("Amber"));
	PlayInWindow(1);
	Activate(2);
	FEditorDelegates::PreBeginPIE.Broadcast(GetParam());
	ReportGameViewport();
	EXPECT_EQ(DescribeGame(), "on 0.25 Amber");
}

INSTANTIATE_TEST_SUITE_P(PlayingAndSimulating, FPlayEvent, testing::Bool());

TEST_F(FPlay, ToggledToSimulationAndBackKeepsTheGamesRecord)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	Display(1, false, 1.0f, TEXT("Amber"));
	GEditor->ToggleBetweenPIEandSIE();
	GEditor->ToggleBetweenPIEandSIE();
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, IsNoBusinessOfTheLevelViewportList)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	StandIn::BroadcastLevelViewportClientListChanged();
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, AddsNoPaneToTheSettings)
{
	StandIn::BroadcastLevelViewportClientListChanged();
	const size_t Before = ReadSettings().size();
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	StandIn::BroadcastLevelViewportClientListChanged();
	EndPlay();
	StandIn::BroadcastLevelViewportClientListChanged();
	EXPECT_EQ(ReadSettings().size(), Before);
}

TEST_F(FPlay, IsEndedByALayoutChangeOfItsPaneWhoseLookIsSaved)
{
	StandIn::BroadcastLevelViewportClientListChanged();
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	StandIn::SetViewportLayout(OnePane);
	const std::vector<std::string> Pairs = ReadSettings();
	EXPECT_EQ(std::count(Pairs.begin(), Pairs.end(), MakePair("FourPanes2x2.Viewport 1.Viewport1", true, "0.500000", "Teal")), 1);
}

TEST_F(FPlay, InAWindowKeepsItsLookOverALayoutChange)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInWindow(1);
	StandIn::SetViewportLayout(OnePane);
	EXPECT_EQ(DescribeGame(), "on 0.5 Teal");
}

TEST_F(FPlay, StartsFromAPaneOfANewLayout)
{
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInWindow(1);
	StandIn::SetViewportLayout(OnePane);
	Display(0, true, 0.25f, TEXT("Amber"));
	PlayInPane(0);
	EXPECT_EQ(DescribeGame(), "on 0.25 Amber");
}

TEST_F(FPlay, AtTheEditorsExitSavesThePanesLook)
{
	StandIn::BroadcastLevelViewportClientListChanged();
	Display(1, true, 0.5f, TEXT("Teal"));
	PlayInPane(1);
	ExitEditor();
	const std::vector<std::string> Pairs = ReadSettings();
	EXPECT_EQ(std::count(Pairs.begin(), Pairs.end(), MakePair("FourPanes2x2.Viewport 1.Viewport1", true, "0.500000", "Teal")), 1);
}

class FPlayWithAnOpenSubmenu : public FPlay
{
protected:
	virtual void SetUp() override
	{
		FPlay::SetUp();
		Activate(1);
		Display(1, false, 0.5f, TEXT("Teal"));
		Person.emplace(false);
		Person->Open(UToolMenus::Get()->GenerateWidget(ViewMenu, FToolMenuContext()));
		Person->Hover(TEXT("Tintmill"));
		Person->Wait(1.0f);
	}

	virtual void TearDown() override { Person.reset(); }

	std::optional<FMenuUser> Person;
};

TEST_F(FPlayWithAnOpenSubmenu, TakesThePanesLook)
{
	PlayInPane(1);
	EXPECT_EQ(DescribeGame(), "off 0.5 Teal");
}

TEST_F(FPlayWithAnOpenSubmenu, LeavesTheSubmenuOpenInAPane)
{
	PlayInPane(1);
	EXPECT_TRUE(Person->FindRow(TEXT("Enable Display")).bEnabled);
}

TEST_F(FPlayWithAnOpenSubmenu, TakesThePanesLookIntoAWindowThoughThatClosesTheMenus)
{
	PlayInWindow(1);
	EXPECT_EQ(Person->CountMenus(), 0);
	EXPECT_EQ(DescribeGame(), "off 0.5 Teal");
}

TEST_F(FPlayWithAnOpenSubmenu, HasTheSwitchWorkOnTheGameThatNowFillsThePane)
{
	PlayInPane(1);
	Person->ClickCheck(TEXT("Enable Display"));
	EXPECT_EQ(DescribeGame() + ", " + Describe(GetClient(1)), "on 1 Teal, off 0.5 Teal");
}

TEST_F(FPlayWithAnOpenSubmenu, HasTheSwitchWorkOnThePaneWhileItIsSimulated)
{
	PlayInPane(1, EPlaySessionWorldType::SimulateInEditor);
	Person->ClickCheck(TEXT("Enable Display"));
	EXPECT_EQ(DescribeGame() + ", " + Describe(GetClient(1)), "off 0.5 Teal, on 1 Teal");
}

TEST_F(FPlayWithAnOpenSubmenu, HasTheSwitchWorkOnThePaneAgainAfterwards)
{
	PlayInPane(1);
	EndPlay();
	Person->ClickCheck(TEXT("Enable Display"));
	EXPECT_EQ(Describe(GetClient(1)), "on 1 Teal");
}

/** A hundred plays in a row, in a pane and in a window, with looks and without. */
class FPlayAHundredTimes : public FPlay
{
protected:
	virtual void SetUp() override
	{
		FPlay::SetUp();
		Display(1, true, 0.5f, TEXT("Teal"));
		// What is made once is there before anything is counted.
		PlayOnce(0);
		PlayOnce(1);
		NumObjects = StandIn::GetNumObjects();
		NumRegistrations = StandIn::ListRegistrations().Num();
		for (int32 Round = 0; Round < 100; ++Round)
		{
			PlayOnce(Round);
		}
	}

	void PlayOnce(int32 Round)
	{
		const int32 Pane = Round % 3;
		Round % 2 == 0 ? PlayInPane(Pane) : PlayInWindow(Pane);
		Clients.insert(GetGameClient());
		EndPlay();
	}

	/** Every client ever seen; a new one may have the address of an old one. */
	std::set<FViewportClient*> Clients;
	int32 NumObjects = 0;
	int32 NumRegistrations = 0;
};

TEST_F(FPlayAHundredTimes, LeavesExactlyOneFeatureLevelHandler)
{
	EXPECT_EQ(CountFeatureLevelHandlers(GetModule()), 1);
}

TEST_F(FPlayAHundredTimes, LeavesOneRecordForEachClientEverSeen)
{
	int32 Removed = 0;
	for (FViewportClient* const Client : Clients)
	{
		Removed += GetDisplayManager().RemoveDisplayConfiguration(Client) ? 1 : 0;
		Removed += GetDisplayManager().RemoveDisplayConfiguration(Client) ? 1 : 0;
	}
	EXPECT_EQ(Removed, static_cast<int32>(Clients.size()));
}

TEST_F(FPlayAHundredTimes, LeavesNoObjectsBehind)
{
	EXPECT_EQ(StandIn::GetNumObjects(), NumObjects);
}

TEST_F(FPlayAHundredTimes, LeavesNoRegistrationsBehind)
{
	EXPECT_EQ(StandIn::ListRegistrations().Num(), NumRegistrations);
}

TEST_F(FPlayAHundredTimes, LeavesNoWorldContextsBehind)
{
	EXPECT_EQ(GEditor->GetWorldContexts().Num(), 1);
}

TEST_F(FPlayAHundredTimes, LeavesThePanesAsTheyAre)
{
	EXPECT_EQ(DescribePanes(), "off 1 none, on 0.5 Teal, off 1 none, off 1 none");
}

TEST_F(FPlayAHundredTimes, LeavesTheSettingsAlone)
{
	EXPECT_EQ(ReadSettings().size(), 3u);
}
}

// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SBoxPanel.h"
#include "Widgets/STintmillWidget.h"

#include "TintmillEditor/ViewMenuFixture.h"

#include "Layout/Children.h"
#include "StandIn/LevelEditorPanes.h"
#include "TintmillObject.h"

// The panel on its own: two rows that edit a copy of a record and tell of every change.

namespace
{
const FName PanelMenu(TEXT("TintmillWidget.DisplayConfiguration"));

class FTintmillWidget : public FViewMenuFixture
{
protected:
	virtual void SetUp() override
	{
		WriteLook("Teal");
		ShowEditor(TEXT("OnePane"));
	}

	/** A panel on a copy of a record, which notes every change in Changes. */
	TSharedRef<STintmillWidget> Make(const FTintmillDisplayConfiguration& Record = FTintmillDisplayConfiguration())
	{
		// clang-format off
		return SNew(STintmillWidget)
			.Viewport(GetViewport(0))
			.DisplayConfiguration(Record)
			.OnDisplayConfigurationChanged_Lambda([this](const FTintmillDisplayConfiguration& New) { Changes.push_back(New); });
		// clang-format on
	}

	/** Pops such a panel up. */
	TSharedRef<STintmillWidget> OpenNew(const FTintmillDisplayConfiguration& Record = FTintmillDisplayConfiguration())
	{
		const TSharedRef<STintmillWidget> Widget = Make(Record);
		User->Open(Widget);
		return Widget;
	}

	static FTintmillDisplayConfiguration MakeRecord(bool bEnable, float Intensity, UTintmillObject* Look = nullptr)
	{
		FTintmillDisplayConfiguration Record;
		Record.bEnableDisplay = bEnable;
		Record.Intensity = Intensity;
		Record.LookAsset = Look;
		return Record;
	}

	/** Clicks the check box of the toggle, which leaves the menu open. */
	void Toggle() { User->ClickCheck(TEXT("Enable Display")); }

	ECheckBoxState GetCheck() const { return User->FindRow(TEXT("Enable Display")).CheckState; }

	/** The panel's registered menu. */
	static UToolMenu* GetMenu() { return UToolMenus::Get()->FindMenu(PanelMenu); }

	static const FToolMenuSection& GetSection() { return *GetMenu()->FindSection(TEXT("DisplayConfiguration")); }

	static const FToolMenuEntry& GetEntry(const TCHAR* Name) { return *GetSection().FindEntry(Name); }

	static TSharedRef<SWidget> GetOnlyChild(const TSharedRef<SWidget>& Widget)
	{
		EXPECT_EQ(Widget->GetChildren()->Num(), 1);
		return Widget->GetChildren()->GetChildAt(0);
	}

	std::vector<FTintmillDisplayConfiguration> Changes;
};

typedef FTintmillWidget FTintmillWidgetDeathTest;

// What it registers.

TEST_F(FTintmillWidget, RegistersItsMenuWhenTheFirstOneIsMade)
{
	const bool bBefore = UToolMenus::Get()->FindMenu(PanelMenu) != nullptr;
	Make();
	EXPECT_TRUE(!bBefore && UToolMenus::Get()->IsMenuRegistered(PanelMenu));
}

TEST_F(FTintmillWidget, ItsMenuHasNoParent)
{
	Make();
	EXPECT_EQ(GetMenu()->MenuParent, NAME_None);
}

TEST_F(FTintmillWidget, ItsMenuIsAMenuNotABar)
{
	Make();
	EXPECT_EQ(GetMenu()->MenuType, EMultiBoxType::Menu);
}

TEST_F(FTintmillWidget, TheSecondOneFindsTheMenuOfTheFirst)
{
	Make();
	const UToolMenu* const First = GetMenu();
	Make();
	EXPECT_EQ(GetMenu(), First);
}

TEST_F(FTintmillWidget, TheSecondOneDoesNotRegisterAgain)
{
	Make();
	Make();
	EXPECT_TRUE(Log.InCategory(TEXT("LogToolMenus")).empty());
}

TEST_F(FTintmillWidget, AMenuThatAnExtensionMadeKnownIsTakenAsItIs)
{
	UToolMenus::Get()->ExtendMenu(PanelMenu);
	Make();
	EXPECT_FALSE(UToolMenus::Get()->IsMenuRegistered(PanelMenu));
}

TEST_F(FTintmillWidget, ItsMenuOutlivesIt)
{
	Make();
	EXPECT_TRUE(UToolMenus::Get()->IsMenuRegistered(PanelMenu));
}

TEST_F(FTintmillWidget, ItsMenuHasOneSection)
{
	Make();
	ASSERT_EQ(GetMenu()->Sections.Num(), 1);
	EXPECT_EQ(GetMenu()->Sections[0].Name, FName(TEXT("DisplayConfiguration")));
}

TEST_F(FTintmillWidget, TheSectionsLabelIsTheEmptyText)
{
	Make();
	EXPECT_TRUE(GetSection().Label.IsSet() && GetSection().Label.Get().IdenticalTo(FText::GetEmpty()));
}

TEST_F(FTintmillWidget, TheSectionHasNoPlaceOfItsOwn)
{
	Make();
	EXPECT_EQ(GetSection().InsertPosition, FToolMenuInsert());
}

TEST_F(FTintmillWidget, TheTwoEntriesAreNamedInThisOrder)
{
	Make();
	ASSERT_EQ(GetSection().Blocks.Num(), 2);
	EXPECT_EQ(GetSection().Blocks[0].Name, FName(TEXT("EnableDisplay")));
	EXPECT_EQ(GetSection().Blocks[1].Name, FName(TEXT("TMLAssetSelection")));
}

TEST_F(FTintmillWidget, TheMenuDoesNotGrow)
{
	Make();
	Make();
	Make();
	EXPECT_EQ(GetMenu()->Sections.Num() * 100 + GetSection().Blocks.Num(), 102);
}

TEST_F(FTintmillWidget, TheEntriesBelongToNoOwner)
{
	Make();
	EXPECT_FALSE(GetEntry(TEXT("EnableDisplay")).Owner.IsSet() || GetEntry(TEXT("TMLAssetSelection")).Owner.IsSet());
}

// The toggle's entry.

TEST_F(FTintmillWidget, TheTogglesLabel)
{
	Make();
	EXPECT_EQ(Describe(GetEntry(TEXT("EnableDisplay")).Label.Get()), "STintmillWidget, EnableDisplay_Label, Enable Display");
}

TEST_F(FTintmillWidget, TheTogglesToolTip)
{
	Make();
	EXPECT_EQ(Describe(GetEntry(TEXT("EnableDisplay")).ToolTip.Get()),
		"STintmillWidget, EnableDisplay_ToolTip, Enable/Disable Tintmill rendering pass.");
}

TEST_F(FTintmillWidget, TheToggleIsAMenuEntryOfTypeToggleButton)
{
	Make();
	EXPECT_EQ(GetEntry(TEXT("EnableDisplay")).Type, EMultiBlockType::MenuEntry);
	EXPECT_EQ(GetEntry(TEXT("EnableDisplay")).UserInterfaceActionType, EUserInterfaceActionType::ToggleButton);
}

TEST_F(FTintmillWidget, TheToggleHasAnEmptyIcon)
{
	Make();
	const TAttribute<FSlateIcon>& Icon = GetEntry(TEXT("EnableDisplay")).Icon;
	EXPECT_TRUE(Icon.IsSet() && !Icon.Get().IsSet());
}

TEST_F(FTintmillWidget, TheToggleHasNoTutorialName)
{
	Make();
	EXPECT_EQ(GetEntry(TEXT("EnableDisplay")).TutorialHighlightName, NAME_None);
}

TEST_F(FTintmillWidget, TheToggleHasNoPlaceOfItsOwn)
{
	Make();
	EXPECT_EQ(GetEntry(TEXT("EnableDisplay")).InsertPosition, FToolMenuInsert());
}

// The entry of the look.

TEST_F(FTintmillWidget, TheLookEntrysLabelWithoutALook)
{
	const TSharedRef<STintmillWidget> Widget = Make();
	EXPECT_EQ(Describe(GetEntry(TEXT("TMLAssetSelection")).Label.Get()), "STintmillWidget, TMLAssetSelection_Label, Select a TML Asset");
}

TEST_F(FTintmillWidget, TheLookEntrysLabelWithALookIsItsPlainNameForAllLanguages)
{
	const TSharedRef<STintmillWidget> Widget = Make(MakeRecord(false, 1.0f, LoadLook("Teal")));
	EXPECT_EQ(Describe(GetEntry(TEXT("TMLAssetSelection")).Label.Get()), "-, -, Teal");
}

TEST_F(FTintmillWidget, TheLookEntrysLabelKeepsANumberInTheName)
{
	WriteLook("Teal_07_3");
	const TSharedRef<STintmillWidget> Widget = Make(MakeRecord(false, 1.0f, LoadLook("Teal_07_3")));
	EXPECT_EQ(ToStd(GetEntry(TEXT("TMLAssetSelection")).Label.Get().ToString()), "Teal_07_3");
}

TEST_F(FTintmillWidget, TheLookEntrysLabelIsAskedForAnew)
{
	Make();
	EXPECT_TRUE(GetEntry(TEXT("TMLAssetSelection")).Label.IsSet());
	const TSharedRef<STintmillWidget> Widget = Make();
	EXPECT_TRUE(GetEntry(TEXT("TMLAssetSelection")).Label.IsBound());
}

TEST_F(FTintmillWidget, TheLookEntrysLabelLetsGoOfAWidgetThatIsGone)
{
	Make();
	EXPECT_FALSE(GetEntry(TEXT("TMLAssetSelection")).Label.IsBound());
}

TEST_F(FTintmillWidget, TheLookEntrysToolTip)
{
	Make();
	EXPECT_EQ(Describe(GetEntry(TEXT("TMLAssetSelection")).ToolTip.Get()),
		"STintmillWidget, TMLAssetSelection_Tooltip, Select the asset from which the look will be fetched.");
}

TEST_F(FTintmillWidget, TheLookEntryIsASubMenuThatHoveringOpens)
{
	Make();
	EXPECT_TRUE(GetEntry(TEXT("TMLAssetSelection")).IsSubMenu());
	EXPECT_FALSE(GetEntry(TEXT("TMLAssetSelection")).SubMenuData.bOpenSubMenuOnClick);
}

TEST_F(FTintmillWidget, TheLookEntryIsOfTypeNone)
{
	Make();
	EXPECT_EQ(GetEntry(TEXT("TMLAssetSelection")).UserInterfaceActionType, EUserInterfaceActionType::None);
}

TEST_F(FTintmillWidget, TheLookEntryHasAnEmptyIcon)
{
	Make();
	const TAttribute<FSlateIcon>& Icon = GetEntry(TEXT("TMLAssetSelection")).Icon;
	EXPECT_TRUE(Icon.IsSet() && !Icon.Get().IsSet());
}

TEST_F(FTintmillWidget, TheLookEntryClosesTheMenuAfterASelection)
{
	Make();
	EXPECT_TRUE(GetEntry(TEXT("TMLAssetSelection")).bShouldCloseWindowAfterMenuSelection);
}

TEST_F(FTintmillWidget, TheLookEntrysFillerIsAToolMenuDelegateOfTheWidget)
{
	const TSharedRef<STintmillWidget> Widget = Make();
	EXPECT_TRUE(GetEntry(TEXT("TMLAssetSelection")).SubMenuData.ConstructMenu.NewToolMenu.IsBoundToObject(&Widget.Get()));
}

TEST_F(FTintmillWidget, TheLookEntrysFillerIsBoundRaw)
{
	Make();
	EXPECT_TRUE(GetEntry(TEXT("TMLAssetSelection")).SubMenuData.ConstructMenu.NewToolMenu.IsBound());
}

// The rows.

TEST_F(FTintmillWidget, ShowsItsTwoRows)
{
	OpenNew();
	EXPECT_EQ(ToStd(User->GetLabels()), "Enable Display|Select a TML Asset");
}

TEST_F(FTintmillWidget, ShowsNoHeading)
{
	OpenNew();
	EXPECT_EQ(ToStd(User->GetHeadings()), "");
}

TEST_F(FTintmillWidget, ShowsTheNameOfTheLook)
{
	OpenNew(MakeRecord(false, 1.0f, LoadLook("Teal")));
	EXPECT_EQ(ToStd(User->GetLabels()), "Enable Display|Teal");
}

TEST_F(FTintmillWidget, ShowsACheckBoxForTheToggleOnly)
{
	OpenNew();
	EXPECT_TRUE(User->FindRow(TEXT("Enable Display")).bHasCheck);
	EXPECT_FALSE(FindLookRow().bHasCheck);
}

TEST_F(FTintmillWidget, ShowsAnArrowForTheLookOnly)
{
	OpenNew();
	EXPECT_FALSE(User->FindRow(TEXT("Enable Display")).bHasSubMenu);
	EXPECT_TRUE(FindLookRow().bHasSubMenu);
}

TEST_F(FTintmillWidget, TheToggleDoesNotRepeatWhileItsKeyIsHeld)
{
	OpenNew();
	EXPECT_FALSE(User->FindRow(TEXT("Enable Display")).bRepeats);
}

TEST_F(FTintmillWidget, BothRowsCanAlwaysBeUsed)
{
	OpenNew();
	EXPECT_TRUE(User->FindRow(TEXT("Enable Display")).bEnabled && FindLookRow().bEnabled);
}

TEST_F(FTintmillWidget, WithoutARecordItShowsTheDefaultOne)
{
	User->Open(SNew(STintmillWidget).Viewport(GetViewport(0)));
	EXPECT_EQ(ToStd(User->GetLabels()), "Enable Display|Select a TML Asset");
	EXPECT_EQ(GetCheck(), ECheckBoxState::Unchecked);
}

TEST_F(FTintmillWidget, HoveringTheLookRowOpensItsSubMenu)
{
	OpenNew();
	HoverLookRow();
	EXPECT_EQ(User->CountMenus(), 2);
}

TEST_F(FTintmillWidget, AClickOnTheLookRowDoesNoMoreThanOpenItsSubMenu)
{
	OpenNew();
	User->ClickAt(FindLookRow().Centre);
	EXPECT_EQ(User->CountMenus(), 2);
	EXPECT_TRUE(Changes.empty());
}

// Toggling.

TEST_F(FTintmillWidget, ARecordThatIsOffShowsUnchecked)
{
	OpenNew(MakeRecord(false, 1.0f));
	EXPECT_EQ(GetCheck(), ECheckBoxState::Unchecked);
}

TEST_F(FTintmillWidget, ARecordThatIsOnShowsChecked)
{
	OpenNew(MakeRecord(true, 1.0f));
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FTintmillWidget, TogglingOnShowsChecked)
{
	OpenNew(MakeRecord(false, 0.5f));
	Toggle();
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FTintmillWidget, TogglingOffShowsUnchecked)
{
	OpenNew(MakeRecord(true, 0.5f));
	Toggle();
	EXPECT_EQ(GetCheck(), ECheckBoxState::Unchecked);
}

TEST_F(FTintmillWidget, TogglingOnTellsOfItOnceWithTheDisplayOn)
{
	OpenNew(MakeRecord(false, 0.5f));
	Toggle();
	ASSERT_EQ(Changes.size(), 1u);
	EXPECT_TRUE(Changes[0].bEnableDisplay);
}

TEST_F(FTintmillWidget, TogglingOffTellsOfItOnceWithTheDisplayOff)
{
	OpenNew(MakeRecord(true, 0.5f));
	Toggle();
	ASSERT_EQ(Changes.size(), 1u);
	EXPECT_FALSE(Changes[0].bEnableDisplay);
}

TEST_F(FTintmillWidget, TogglingOnResetsTheIntensity)
{
	OpenNew(MakeRecord(false, 0.25f));
	Toggle();
	EXPECT_FLOAT_EQ(Changes.at(0).Intensity, 1.0f);
}

TEST_F(FTintmillWidget, TogglingOffResetsTheIntensityToo)
{
	OpenNew(MakeRecord(true, 0.25f));
	Toggle();
	EXPECT_FLOAT_EQ(Changes.at(0).Intensity, 1.0f);
}

TEST_F(FTintmillWidget, TogglingKeepsTheLook)
{
	UTintmillObject* const Look = LoadLook("Teal");
	OpenNew(MakeRecord(false, 1.0f, Look));
	Toggle();
	EXPECT_EQ(Changes.at(0).LookAsset, Look);
}

TEST_F(FTintmillWidget, ToggledTwiceItTellsOfOnAndThenOff)
{
	OpenNew(MakeRecord(false, 1.0f));
	Toggle();
	Toggle();
	ASSERT_EQ(Changes.size(), 2u);
	EXPECT_TRUE(Changes[0].bEnableDisplay && !Changes[1].bEnableDisplay);
}

TEST_F(FTintmillWidget, MakingAndShowingItTellsOfNothing)
{
	OpenNew(MakeRecord(true, 0.5f, LoadLook("Teal")));
	User->Wait(1.0f);
	EXPECT_TRUE(Changes.empty());
}

TEST_F(FTintmillWidget, TheCheckBoxLeavesTheMenuOpen)
{
	OpenNew();
	Toggle();
	EXPECT_EQ(User->CountMenus(), 1);
}

TEST_F(FTintmillWidget, TheTogglesLabelClosesTheMenuAndToggles)
{
	const TSharedRef<STintmillWidget> Widget = OpenNew();
	User->Click(TEXT("Enable Display"));
	EXPECT_EQ(User->CountMenus(), 0);
	EXPECT_EQ(Changes.size(), 1u);
}

TEST_F(FTintmillWidget, WithoutAListenerTheCheckMarkStillFlips)
{
	User->Open(SNew(STintmillWidget).Viewport(GetViewport(0)));
	Toggle();
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FTintmillWidget, AListenerThatIsGoneIsPassedOver)
{
	struct FListener
	{
		void Hear(const FTintmillDisplayConfiguration&) {}
	};
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	// clang-format off
	User->Open(SNew(STintmillWidget)
		.Viewport(GetViewport(0))
		.OnDisplayConfigurationChanged(FOnDisplayConfigurationChanged::CreateSP(Listener.ToSharedRef(), &FListener::Hear)));
	// clang-format on
	Listener.Reset();
	Toggle();
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FTintmillWidget, EditsACopyOfItsOwn)
{
	const FTintmillDisplayConfiguration Record = MakeRecord(false, 0.5f);
	OpenNew(Record);
	Toggle();
	EXPECT_FALSE(Record.bEnableDisplay);
}

TEST_F(FTintmillWidget, DoesNotFollowTheRecordItWasMadeFrom)
{
	FTintmillDisplayConfiguration Record = MakeRecord(false, 0.5f);
	OpenNew(Record);
	Record.bEnableDisplay = true;
	User->Wait(0.1f);
	EXPECT_EQ(GetCheck(), ECheckBoxState::Unchecked);
}

// Several of them.

TEST_F(FTintmillWidget, TheEntriesAreTheNewestOnes)
{
	const TSharedRef<STintmillWidget> First = Make(MakeRecord(false, 1.0f));
	const TSharedRef<STintmillWidget> Second = Make(MakeRecord(true, 1.0f, LoadLook("Teal")));
	User->Open(UToolMenus::Get()->GenerateWidget(PanelMenu, FToolMenuContext()));
	EXPECT_EQ(ToStd(User->GetLabels()), "Enable Display|Teal");
	EXPECT_EQ(GetCheck(), ECheckBoxState::Checked);
}

TEST_F(FTintmillWidget, TheNewestOneIsToggledThroughTheMenu)
{
	const TSharedRef<STintmillWidget> First = Make(MakeRecord(false, 1.0f));
	const TSharedRef<STintmillWidget> Second = Make(MakeRecord(true, 1.0f));
	User->Open(UToolMenus::Get()->GenerateWidget(PanelMenu, FToolMenuContext()));
	Toggle();
	ASSERT_EQ(Changes.size(), 1u);
	EXPECT_FALSE(Changes[0].bEnableDisplay);
}

TEST_F(FTintmillWidget, AnotherExtensionsEntryShowsInThePanel)
{
	Make();
	UToolMenus::Get()
		->ExtendMenu(PanelMenu)
		->FindOrAddSection(TEXT("DisplayConfiguration"))
		.AddEntry(FToolMenuEntry::InitMenuEntry(TEXT("Mine"), FText::FromString(TEXT("Mine")), FText(), FSlateIcon(), FUIAction()));
	OpenNew();
	EXPECT_EQ(ToStd(User->GetLabels()), "Enable Display|Select a TML Asset|Mine");
}

TEST_F(FTintmillWidget, ShowsItsMenuAsItIsRegisteredWithoutAssemblingItFirst)
{
	Make();
	bool bAssembled = false;
	UToolMenus::Get()->ExtendMenu(PanelMenu)->AddDynamicSection(
		TEXT("Watch"), FNewToolMenuDelegate::CreateLambda([&bAssembled](UToolMenu*) { bAssembled = true; }));
	Make();
	EXPECT_FALSE(bAssembled);
}

// Layout.

TEST_F(FTintmillWidget, HoldsTheMenuInAVerticalAndAHorizontalBox)
{
	const TSharedRef<SWidget> Vertical = GetOnlyChild(Make());
	const TSharedRef<SWidget> Horizontal = GetOnlyChild(Vertical);
	const TSharedRef<SWidget> Menu = GetOnlyChild(Horizontal);
	EXPECT_EQ(ToStd(Vertical->GetType()) + " " + ToStd(Horizontal->GetType()) + " " + ToStd(Menu->GetType()),
		"SVerticalBox SHorizontalBox SMultiBoxWidget");
}

TEST_F(FTintmillWidget, HoldsTheMenuInTheMiddleOfTheHorizontalBox)
{
	// The box is no higher than the menu, so that only its slot tells.
	const TSharedRef<SWidget> Horizontal = GetOnlyChild(GetOnlyChild(Make()));
	EXPECT_EQ(StaticCastSharedRef<SHorizontalBox>(Horizontal)->GetSlot(0).VAlignment, VAlign_Center);
}

TEST_F(FTintmillWidget, WishesForFourUnitsMoreThanTheMenuIsWide)
{
	const TSharedRef<STintmillWidget> Widget = OpenNew();
	const TSharedRef<SWidget> Menu = FindWidget(Widget, TEXT("SMultiBoxWidget")).ToSharedRef();
	EXPECT_EQ(Widget->GetDesiredSize(), Menu->GetDesiredSize() + FVector2D(4.0f, 0.0f));
}

TEST_F(FTintmillWidget, CentersTheMenuAtTheTopOfAWideRoomWithFourUnitsOnItsRight)
{
	const TSharedRef<STintmillWidget> Widget = Make();
	User->Show(Widget);
	const TSharedRef<SWidget> Menu = FindWidget(Widget, TEXT("SMultiBoxWidget")).ToSharedRef();
	const FGeometry& Room = Widget->GetCachedGeometry();
	const FGeometry& Place = Menu->GetCachedGeometry();
	const float Left = Place.GetAbsolutePosition().X - Room.GetAbsolutePosition().X;
	const float Right = Room.GetAbsoluteSize().X - Left - Place.GetAbsoluteSize().X;
	EXPECT_FLOAT_EQ(Right - Left, 4.0f);
	EXPECT_FLOAT_EQ(Place.GetAbsolutePosition().Y, Room.GetAbsolutePosition().Y);
}

TEST_F(FTintmillWidget, GivesTheMenuNoMoreRoomThanItWishesFor)
{
	const TSharedRef<STintmillWidget> Widget = Make();
	User->Show(Widget);
	const TSharedRef<SWidget> Menu = FindWidget(Widget, TEXT("SMultiBoxWidget")).ToSharedRef();
	EXPECT_EQ(Menu->GetCachedGeometry().GetLocalSize(), Menu->GetDesiredSize());
}

TEST_F(FTintmillWidget, KeepsTheMenuAtItsWidthInANarrowRoom)
{
	const TSharedRef<STintmillWidget> Widget = Make();
	// clang-format off
	User->Show(SNew(SBox)
		.HAlign(HAlign_Left)
		[
			SNew(SBox).WidthOverride(40.0f)[Widget]
		]);
	// clang-format on
	const TSharedRef<SWidget> Menu = FindWidget(Widget, TEXT("SMultiBoxWidget")).ToSharedRef();
	EXPECT_EQ(Menu->GetCachedGeometry().GetLocalSize().X, Menu->GetDesiredSize().X);
}

// Failure.

TEST_F(FTintmillWidgetDeathTest, WithoutAViewportIsFatal)
{
	EXPECT_DEATH(SNew(STintmillWidget), "Assertion failed: Viewport \\[File:.*STintmillWidget\\.cpp\\]");
}
}

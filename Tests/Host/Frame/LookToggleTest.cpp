// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Frame/FrameFixture.h"

#include "Host/Frame/LookToggle.h"

#include "Misc/ConfigCacheIni.h"
#include "TintmillObject.h"
#include "ToolMenus.h"
#include "UObject/UObjectGlobals.h"

using namespace TintmillHost;

namespace
{
class LookToggle : public FFrameFixture
{
protected:
	virtual void SetUp() override
	{
		FFrameFixture::SetUp();
		StandIn::ActivatePane("FourPanes2x2.Viewport 1.Viewport1");
		GetRecord().LookAsset = LoadObject<UTintmillObject>(nullptr, TEXT("/Game/Looks/Teal.Teal"));
	}

	static FTintmillDisplayConfiguration& GetRecord() { return GetPaneRecord(*StandIn::GetPanes()[1]); }

	void PressTheKey() { Press(EModifierKey::Alt, EKeys::L); }
};

TEST_F(LookToggle, SwitchesTheLookOfTheActivePane)
{
	const bool bBefore = GetRecord().bEnableDisplay;
	PressTheKey();
	EXPECT_NE(GetRecord().bEnableDisplay, bBefore);
}

TEST_F(LookToggle, SwitchesBack)
{
	const bool bBefore = GetRecord().bEnableDisplay;
	PressTheKey();
	PressTheKey();
	EXPECT_EQ(GetRecord().bEnableDisplay, bBefore);
}

TEST_F(LookToggle, LeavesTheOtherPanes)
{
	const bool bBefore = GetPaneRecord(*StandIn::GetPanes()[2]).bEnableDisplay;
	PressTheKey();
	EXPECT_EQ(GetPaneRecord(*StandIn::GetPanes()[2]).bEnableDisplay, bBefore);
}

TEST_F(LookToggle, GoesThroughTheCheckBoxWhichResetsTheIntensity)
{
	GetRecord().Intensity = 0.25f;
	PressTheKey();
	EXPECT_EQ(GetRecord().Intensity, 1.0f);
}

TEST_F(LookToggle, LeavesTheSameSettingsAsAPersonWithTheMouse)
{
	const auto ReadSettings = [] {
		TArray<FString> Lines;
		GConfig->GetArray(
			TEXT("/Script/TintmillEditor.TintmillLevelViewportSettings"), TEXT("ViewportsSettings"), Lines, GEditorPerProjectIni);
		FString Text;
		for (const FString& Line : Lines)
		{
			Text += Line + TEXT("\n");
		}
		return ToText(Text);
	};
	PressTheKey();
	const std::string ByKey = ReadSettings();
	PressTheKey();
	Person.Click(FindOrComplain(LookAt(StandIn::GetPanes()[1].ToSharedRef()), "Lit").Center);
	Person.Click(FollowPath(Person, "Tintmill > Enable Display").CheckCenter);
	EXPECT_EQ(ReadSettings(), ByKey);
}

TEST_F(LookToggle, HasTheViewMenuMadeAnew)
{
	int Made = 0;
	UToolMenus::Get()
		->ExtendMenu("LevelEditor.LevelViewportToolBar.View")
		->AddDynamicSection("Mine", FNewToolMenuDelegate::CreateLambda([&Made](UToolMenu*) { ++Made; }));
	PressTheKey();
	UToolMenus::Get()->RemoveSection("LevelEditor.LevelViewportToolBar.View", "Mine");
	EXPECT_EQ(Made, 1);
}

TEST_F(LookToggle, LeavesNoMenuOpen)
{
	PressTheKey();
	EXPECT_FALSE(FSlateApplication::Get().AnyMenusVisible());
}

TEST_F(LookToggle, ClosesTheMenuThatWasOpen)
{
	Click("File");
	PressTheKey();
	EXPECT_FALSE(FSlateApplication::Get().AnyMenusVisible());
}

TEST_F(LookToggle, LeavesTheActivePaneActive)
{
	PressTheKey();
	EXPECT_EQ(GetActiveKey(), "FourPanes2x2.Viewport 1.Viewport1");
}

TEST_F(LookToggle, LeavesTheKeyboardWhereItWas)
{
	Press(EKeys::F6);
	const TSharedPtr<SWidget> Before = FSlateApplication::Get().GetKeyboardFocusedWidget();
	PressTheKey();
	EXPECT_EQ(FSlateApplication::Get().GetKeyboardFocusedWidget(), Before);
}

TEST_F(LookToggle, WorksOnAMaximizedPane)
{
	StandIn::MaximizePane("FourPanes2x2.Viewport 1.Viewport1", true);
	Wait(0.1);
	const bool bBefore = GetRecord().bEnableDisplay;
	PressTheKey();
	EXPECT_NE(GetRecord().bEnableDisplay, bBefore);
}

TEST_F(LookToggle, WorksWithoutMouseOrFocus)
{
	FSlateApplication::Get().ClearKeyboardFocus();
	const bool bBefore = GetRecord().bEnableDisplay;
	PressTheKey();
	EXPECT_NE(GetRecord().bEnableDisplay, bBefore);
}

TEST_F(LookToggle, WorksFromTheMenu)
{
	const bool bBefore = GetRecord().bEnableDisplay;
	Click("Edit");
	Click("Toggle Look of Active Viewport");
	EXPECT_NE(GetRecord().bEnableDisplay, bBefore);
}

TEST_F(LookToggle, WorksFromTheToolBar)
{
	const bool bBefore = GetRecord().bEnableDisplay;
	Click("Look");
	EXPECT_NE(GetRecord().bEnableDisplay, bBefore);
}

TEST_F(LookToggle, ComplainsWithoutTheModulesEntry)
{
	UToolMenus::Get()->RemoveEntry("LevelEditor.LevelViewportToolBar.View", "ColorManagement", "TMLDisplaySubMenu");
	EXPECT_THROW(ToggleLookOfActivePane(), FCommandError);
}

TEST_F(LookToggle, LeavesNoMenuOpenWhenItComplains)
{
	UToolMenus::Get()->RemoveEntry("LevelEditor.LevelViewportToolBar.View", "ColorManagement", "TMLDisplaySubMenu");
	PressTheKey();
	EXPECT_FALSE(FSlateApplication::Get().AnyMenusVisible());
}
}

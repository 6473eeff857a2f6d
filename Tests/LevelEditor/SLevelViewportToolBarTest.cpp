// Copyright The Tintmill authors. All rights reserved.

#include "SLevelViewportToolBar.h"
#include "SEditorViewportViewMenuContext.h"
#include "StandIn/BrushShape.h"
#include "StandIn/ViewportToolBarButtons.h"
#include "Support/EditorFixture.h"
#include "Support/MenuUser.h"
#include "ToolMenus.h"

#include <set>

namespace
{
/** Four panes with their toolbars in a window, and a person who uses them. */
class FLevelViewportToolBarTest : public FEngineFixture
{
protected:
	virtual void ChooseOptions() override { Options.bSlate = true; }

	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		User = MakeUnique<FMenuUser>(false);
		User->Show(StandIn::OpenLevelEditor("FourPanes2x2", NAME_None));
		User->Wait(0.1f);
	}

	virtual void TearDown() override
	{
		FSlateApplication::Get().DismissAllMenus();
		User.Reset();
		StandIn::CloseLevelEditor();
		FEngineFixture::TearDown();
	}

	/** A pane by its number. */
	static TSharedPtr<SLevelViewport> GetPane(const int32 Index) { return StandIn::GetPanes()[Index]; }

	/** The button of a pane's toolbar that opens the View menu. */
	static StandIn::FViewportToolBarButton FindViewButton(const int32 Pane)
	{
		for (const StandIn::FViewportToolBarButton& Button : StandIn::ListViewportToolBarButtons(GetPane(Pane).ToSharedRef()))
		{
			if (Button.Label == TEXT("Lit"))
			{
				return Button;
			}
		}
		ADD_FAILURE() << "no such button";
		return StandIn::FViewportToolBarButton();
	}

	/** Clicks the button of a pane that opens the View menu. */
	void OpenViewMenu(const int32 Pane) { User->ClickAt(FindViewButton(Pane).Centre); }

	TUniquePtr<FMenuUser> User;
	const FName ViewMenu = "LevelEditor.LevelViewportToolBar.View";
};
}

TEST_F(FLevelViewportToolBarTest, ShowsItsButtonsFromLeftToRight)
{
	FString Labels;
	for (const StandIn::FViewportToolBarButton& Button : StandIn::ListViewportToolBarButtons(GetPane(0).ToSharedRef()))
	{
		Labels += Button.Label + TEXT(" ");
	}
	EXPECT_TRUE(Labels.EndsWith(TEXT(" Lit Show ")));
}

TEST_F(FLevelViewportToolBarTest, DoesNotRegisterTheViewMenuBeforeItIsOpened)
{
	EXPECT_FALSE(UToolMenus::Get()->IsMenuRegistered(ViewMenu));
}

TEST_F(FLevelViewportToolBarTest, RegistersTheViewMenuWhenItIsOpenedFirst)
{
	OpenViewMenu(0);
	EXPECT_TRUE(UToolMenus::Get()->IsMenuRegistered(ViewMenu));
}

TEST_F(FLevelViewportToolBarTest, RegistersTheViewMenuAsAChildOfAllViewportsOne)
{
	OpenViewMenu(0);
	EXPECT_EQ(UToolMenus::Get()->FindMenu(ViewMenu)->MenuParent, FName("UnrealEd.ViewportToolbar.View"));
}

TEST_F(FLevelViewportToolBarTest, ListsTheSectionsOfTheViewMenu)
{
	OpenViewMenu(0);
	EXPECT_TRUE(IsText(User->GetHeadings(), TEXT("View Mode|Collision|Landscape|Exposure")));
}

TEST_F(FLevelViewportToolBarTest, ListsTheEntriesOfTheViewMenu)
{
	OpenViewMenu(0);
	EXPECT_TRUE(IsText(User->GetLabels(),
		TEXT("Lit|Unlit|Wireframe|Detail Lighting|Lighting Only|Reflections|Optimization Viewmodes|Buffer Visualization|Level of Detail "
			 "Coloration|Player Collision|Visibility Collision|LOD|Game Settings")));
}

TEST_F(FLevelViewportToolBarTest, ChecksTheViewModeThatIsDrawn)
{
	OpenViewMenu(0);
	EXPECT_EQ(User->FindRow(TEXT("Lit")).CheckState, ECheckBoxState::Checked);
}

TEST_F(FLevelViewportToolBarTest, DoesNotOfferAViewModeThatIsNotDrawn)
{
	OpenViewMenu(0);
	EXPECT_FALSE(User->FindRow(TEXT("Unlit")).bEnabled);
}

TEST_F(FLevelViewportToolBarTest, ShowsTheKeyOfAViewMode)
{
	OpenViewMenu(0);
	EXPECT_TRUE(IsText(User->FindRow(TEXT("Wireframe")).InputText, TEXT("Alt+2")));
}

TEST_F(FLevelViewportToolBarTest, PutsAnExtensionMadeBeforeTheFirstOpeningBelowEverything)
{
	UToolMenus::Get()
		->ExtendMenu(ViewMenu)
		->AddSection("ColorManagement", FText::FromString(TEXT("Color Management")))
		.AddEntry(FToolMenuEntry::InitMenuEntry("Mine", FText::FromString(TEXT("Mine")), FText(), FSlateIcon(), FUIAction()));
	OpenViewMenu(0);
	EXPECT_TRUE(IsText(User->GetHeadings(), TEXT("View Mode|Collision|Landscape|Exposure|Color Management")));
}

TEST_F(FLevelViewportToolBarTest, PutsAnExtensionAfterASectionThatIsMadeAtOpening)
{
	UToolMenus::Get()
		->ExtendMenu(ViewMenu)
		->AddSection("Mine", FText::FromString(TEXT("Mine")), FToolMenuInsert("ViewMode", EToolMenuInsertType::After))
		.AddEntry(FToolMenuEntry::InitMenuEntry("Mine", FText::FromString(TEXT("Mine")), FText(), FSlateIcon(), FUIAction()));
	OpenViewMenu(0);
	EXPECT_TRUE(IsText(User->GetHeadings(), TEXT("View Mode|Mine|Collision|Landscape|Exposure")));
}

TEST_F(FLevelViewportToolBarTest, ShowsAnExtensionInEveryPane)
{
	UToolMenus::Get()->ExtendMenu(ViewMenu)->AddSection("Mine").AddEntry(
		FToolMenuEntry::InitMenuEntry("Mine", FText::FromString(TEXT("Mine")), FText(), FSlateIcon(), FUIAction()));
	OpenViewMenu(0);
	User->Press(EKeys::Escape);
	OpenViewMenu(3);
	EXPECT_TRUE(User->GetLabels().EndsWith(TEXT("|Mine")));
}

TEST_F(FLevelViewportToolBarTest, GivesTheMenuTheContextOfItsButton)
{
	TSharedPtr<const void> Seen;
	UToolMenus::Get()->ExtendMenu(ViewMenu)->AddDynamicSection("Mine", FNewToolMenuDelegate::CreateLambda([&Seen](UToolMenu* InMenu) {
		const UEditorViewportViewMenuContext* Context = InMenu->FindContext<UEditorViewportViewMenuContext>();
		Seen = Context ? TSharedPtr<const void>(Context->EditorViewportViewMenu.Pin()) : nullptr;
	}));
	const TSharedPtr<SWidget> Button = FindViewButton(2).Widget;
	OpenViewMenu(2);
	EXPECT_EQ(Seen.Get(), static_cast<const void*>(Button.Get()));
}

TEST_F(FLevelViewportToolBarTest, LeavesTheActiveViewportAsItIs)
{
	StandIn::ActivatePane(GetPane(1)->GetConfigKey());
	OpenViewMenu(0);
	EXPECT_EQ(GEditor->GetActiveViewport(), GetPane(1)->GetActiveViewport());
}

TEST_F(FLevelViewportToolBarTest, LeavesTheActiveViewportAsItIsOnceItsMenuIsClosed)
{
	StandIn::ActivatePane(GetPane(1)->GetConfigKey());
	OpenViewMenu(0);
	User->Press(EKeys::Escape);
	EXPECT_EQ(GEditor->GetActiveViewport(), GetPane(1)->GetActiveViewport());
}

TEST_F(FLevelViewportToolBarTest, LeavesTheClientThatIsWorkedInAsItIs)
{
	StandIn::ActivatePane(GetPane(1)->GetConfigKey());
	OpenViewMenu(0);
	EXPECT_EQ(GCurrentLevelEditingViewportClient, &GetPane(1)->GetLevelViewportClient());
}

TEST_F(FLevelViewportToolBarTest, ClosesTheViewMenuOnASecondClick)
{
	OpenViewMenu(0);
	OpenViewMenu(0);
	EXPECT_EQ(User->CountMenus(), 0);
}

TEST_F(FLevelViewportToolBarTest, OpensTheViewMenuAgainOnAThirdClick)
{
	OpenViewMenu(0);
	OpenViewMenu(0);
	OpenViewMenu(0);
	EXPECT_EQ(User->CountMenus(), 1);
}

TEST_F(FLevelViewportToolBarTest, OpensTheMenuOfTheButtonThatHasTheKeyboard)
{
	FSlateApplication::Get().SetKeyboardFocus(FindViewButton(1).Widget);
	User->Press(EKeys::Enter);
	EXPECT_TRUE(IsText(User->GetHeadings(), TEXT("View Mode|Collision|Landscape|Exposure")));
}

TEST_F(FLevelViewportToolBarTest, LeavesNoPaneBehindWhenTheLevelEditorCloses)
{
	OpenViewMenu(0);
	FSlateApplication::Get().DismissAllMenus();
	const TWeakPtr<SLevelViewport> Pane = GetPane(0);
	StandIn::CloseLevelEditor();
	User->Wait(0.0f);
	const bool bGone = !Pane.IsValid();
	StandIn::OpenLevelEditor("OnePane", NAME_None);
	EXPECT_TRUE(bGone);
}

TEST_F(FLevelViewportToolBarTest, EveryViewModeHasAnIconOfItsOwnInOneColumn)
{
	OpenViewMenu(0);
	const TSharedRef<SWindow> Window = FSlateApplication::Get().GetVisibleMenuWindow().ToSharedRef();
	std::set<StandIn::EBrushShape> Icons;
	std::set<float> Columns;
	for (const FSlateDrawElement& Element : Window->GetElementList().GetElements())
	{
		const bool bBox = Element.GetElementType() == EElementType::ET_Box;
		const StandIn::EBrushShape Shape = bBox ? StandIn::GetBrushShape(Element.GetBrush()) : StandIn::EBrushShape::None;
		if (Shape >= StandIn::EBrushShape::ViewLit && Shape <= StandIn::EBrushShape::ViewVisibilityCollision)
		{
			Icons.insert(Shape);
			Columns.insert(Element.GetRect().Left);
		}
	}
	EXPECT_EQ(Icons.size(), 11u);
	EXPECT_EQ(Columns.size(), 1u);
}

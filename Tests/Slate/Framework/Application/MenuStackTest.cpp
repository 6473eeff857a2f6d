// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/MenuStack.h"
#include "Slate/SlateFixture.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SMenuAnchor.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

namespace
{
class FMenus : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		SAssignNew(Owner, STestBox).Name("owner").Size(FVector2D(100, 20)).Focusable(true).Log(&Notes);
		Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[Owner.ToSharedRef()]);
	}

	/** Opens a menu of 50 by 40 for a widget. */
	TSharedPtr<IMenu> Open(const TSharedRef<SWidget>& For, const FVector2D& At, bool bFocus = true,
		FPopupTransitionEffect Effect = FPopupTransitionEffect(), bool bCollapsedByParent = true)
	{
		const TSharedRef<STestBox> Content = SNew(STestBox).Size(FVector2D(50, 40)).Focusable(true);
		const TSharedPtr<IMenu> Menu =
			App().PushMenu(For, FWidgetPath(), Content, At, Effect, bFocus, FVector2D(0, 0), TOptional<EPopupMethod>(), bCollapsedByParent);
		StandIn::AdvanceTime(0.0f);
		return Menu;
	}

	/** Opens a chain of three menus, each from the one before. */
	void OpenThree()
	{
		Menus.push_back(Open(Owner.ToSharedRef(), FVector2D(0, 100)));
		Menus.push_back(Open(Menus[0]->GetContent().ToSharedRef(), FVector2D(60, 100)));
		Menus.push_back(Open(Menus[1]->GetContent().ToSharedRef(), FVector2D(120, 100)));
	}

	/** Says which menus of the chain are open. */
	std::vector<bool> GetOpen() const
	{
		std::vector<bool> Open;
		for (const TSharedPtr<IMenu>& Menu : Menus)
		{
			Open.push_back(Menu->GetContent().IsValid());
		}
		return Open;
	}

	TSharedPtr<STestBox> Owner;
	std::vector<TSharedPtr<IMenu>> Menus;
};
}

TEST_F(FMenus, AreVisibleFromThePushOn)
{
	EXPECT_FALSE(App().AnyMenusVisible());
	const TSharedPtr<IMenu> Menu = Open(Owner.ToSharedRef(), FVector2D(10, 20));
	EXPECT_TRUE(App().AnyMenusVisible());
	EXPECT_EQ(FSlateRect(10, 20, 60, 60), Menu->GetOwnedWindow()->GetRectInScreen());
	EXPECT_TRUE(Menu->GetParentWindow() == Window);
}

TEST_F(FMenus, DoNotOpenForAWidgetInNoWindow)
{
	EXPECT_FALSE(App().PushMenu(SNew(STestBox), FWidgetPath(), SNew(STestBox), FVector2D(0, 0), FPopupTransitionEffect()).IsValid());
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(FMenus, OpenedFromAMenuKeepTheirParents)
{
	OpenThree();
	EXPECT_EQ(3, App().GetMenuStack().GetNumStackLevels());
	EXPECT_TRUE(App().HasOpenSubMenus(Menus[0]));
	EXPECT_FALSE(App().HasOpenSubMenus(Menus[2]));
}

TEST_F(FMenus, OpenedFromTheWindowReplaceAllOthers)
{
	OpenThree();
	Open(Owner.ToSharedRef(), FVector2D(0, 200));
	EXPECT_EQ((std::vector<bool>{false, false, false}), GetOpen());
	EXPECT_EQ(1, App().GetMenuStack().GetNumStackLevels());
}

TEST_F(FMenus, OpenedFromAParentReplaceItsOtherChildren)
{
	OpenThree();
	Open(Menus[0]->GetContent().ToSharedRef(), FVector2D(60, 200));
	EXPECT_EQ((std::vector<bool>{true, false, false}), GetOpen());
	EXPECT_EQ(2, App().GetMenuStack().GetNumStackLevels());
}

TEST_F(FMenus, AllCloseByDismissAllMenusTheLastFirst)
{
	OpenThree();
	for (int32 Index = 0; Index < 3; ++Index)
	{
		Menus[Index]->GetOnMenuDismissed().AddLambda(
			[this, Index](TSharedRef<IMenu>) { Notes.push_back("closed " + std::to_string(Index)); });
	}
	TakeNotes();
	App().DismissAllMenus();
	const FNotes Taken = TakeNotes();
	FNotes Closed;
	std::copy_if(Taken.begin(), Taken.end(), std::back_inserter(Closed), [](const std::string& Note) { return Note[0] == 'c'; });
	EXPECT_EQ((FNotes{"closed 2", "closed 1", "closed 0"}), Closed);
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(FMenus, CloseWithTheirChildrenByDismissMenu)
{
	OpenThree();
	App().DismissMenu(Menus[1]);
	EXPECT_EQ((std::vector<bool>{true, false, false}), GetOpen());
}

TEST_F(FMenus, IgnoreADismissMenuOfOneThatIsClosed)
{
	OpenThree();
	App().DismissMenu(Menus[2]);
	App().DismissMenu(Menus[2]);
	EXPECT_EQ((std::vector<bool>{true, true, false}), GetOpen());
	App().DismissMenu(TSharedPtr<IMenu>());
	EXPECT_EQ((std::vector<bool>{true, true, false}), GetOpen());
}

TEST_F(FMenus, CloseByAWidgetInThemWithTheirChildrenButNotTheirParents)
{
	OpenThree();
	App().DismissMenuByWidget(Menus[1]->GetContent().ToSharedRef());
	EXPECT_EQ((std::vector<bool>{true, false, false}), GetOpen());
}

TEST_F(FMenus, StayOpenWhenTheDismissingWidgetIsInNone)
{
	OpenThree();
	App().DismissMenuByWidget(Owner.ToSharedRef());
	EXPECT_EQ((std::vector<bool>{true, true, true}), GetOpen());
}

TEST_F(FMenus, CloseByAPressOutsideOfAllOfThem)
{
	OpenThree();
	StandIn::ClickAt(FVector2D(300, 250));
	EXPECT_EQ((std::vector<bool>{false, false, false}), GetOpen());
}

TEST_F(FMenus, LetThePressThatClosesThemReachWhatLiesThere)
{
	OpenThree();
	StandIn::MoveMouse(FVector2D(50, 10));
	TakeNotes();
	StandIn::PressMouse();
	const FNotes Taken = TakeNotes();
	EXPECT_NE(Taken.end(), std::find(Taken.begin(), Taken.end(), "owner down"));
	EXPECT_TRUE(Owner->HasKeyboardFocus());
}

TEST_F(FMenus, CloseTheirChildrenWhenTheFocusComesBackByAPress)
{
	OpenThree();
	StandIn::ClickAt(FVector2D(20, 120));
	EXPECT_EQ((std::vector<bool>{true, false, false}), GetOpen());
}

TEST_F(FMenus, StayOpenWhenPressedInside)
{
	OpenThree();
	StandIn::ClickAt(FVector2D(130, 120));
	EXPECT_EQ((std::vector<bool>{true, true, true}), GetOpen());
}

TEST_F(FMenus, StayOpenUnderAParentsFocusIfNotCollapsedByIt)
{
	Menus.push_back(Open(Owner.ToSharedRef(), FVector2D(0, 100)));
	Menus.push_back(Open(Menus[0]->GetContent().ToSharedRef(), FVector2D(60, 100), true, FPopupTransitionEffect(), false));
	StandIn::ClickAt(FVector2D(20, 120));
	EXPECT_EQ((std::vector<bool>{true, true}), GetOpen());
}

TEST_F(FMenus, CloseOneByOneByEscape)
{
	OpenThree();
	StandIn::PressKey(EKeys::Escape);
	EXPECT_EQ((std::vector<bool>{true, true, false}), GetOpen());
	StandIn::PressKey(EKeys::Escape);
	EXPECT_EQ((std::vector<bool>{true, false, false}), GetOpen());
	StandIn::PressKey(EKeys::Escape);
	EXPECT_EQ((std::vector<bool>{false, false, false}), GetOpen());
}

TEST_F(FMenus, CloseByEscapeEvenWithoutTheFocus)
{
	const TSharedPtr<IMenu> Menu = Open(Owner.ToSharedRef(), FVector2D(0, 100), false);
	App().ClearKeyboardFocus();
	StandIn::PressKey(EKeys::Escape);
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(FMenus, CloseWhenTheWindowIsDeactivated)
{
	OpenThree();
	App().ProcessWindowActivatedEvent(FWindowActivateEvent(FWindowActivateEvent::EA_Deactivate, Window.ToSharedRef()));
	EXPECT_EQ((std::vector<bool>{false, false, false}), GetOpen());
}

TEST_F(FMenus, CloseWithTheWindowTheyCameFrom)
{
	OpenThree();
	Window->RequestDestroyWindow();
	EXPECT_EQ((std::vector<bool>{false, false, false}), GetOpen());
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(FMenus, CloseTheirChildrenWithTheirOwnWindow)
{
	OpenThree();
	Menus[1]->GetOwnedWindow()->RequestDestroyWindow();
	EXPECT_EQ((std::vector<bool>{true, false, false}), GetOpen());
}

TEST_F(FMenus, TakeTheFocusIfAskedToAndGiveItBack)
{
	App().SetKeyboardFocus(Owner);
	const TSharedPtr<IMenu> Menu = Open(Owner.ToSharedRef(), FVector2D(0, 100));
	EXPECT_TRUE(Menu->GetContent()->HasKeyboardFocus());
	App().DismissAllMenus();
	EXPECT_TRUE(Owner->HasKeyboardFocus());
}

TEST_F(FMenus, GiveTheFocusBackToTheMenuBefore)
{
	OpenThree();
	App().DismissMenu(Menus[2]);
	EXPECT_TRUE(Menus[1]->GetOwnedWindow()->HasFocusedDescendants());
}

TEST_F(FMenus, LeaveTheFocusAloneIfNotAskedToTakeIt)
{
	App().SetKeyboardFocus(Owner);
	Open(Owner.ToSharedRef(), FVector2D(0, 100), false);
	EXPECT_TRUE(Owner->HasKeyboardFocus());
	EXPECT_TRUE(App().AnyMenusVisible());
}

TEST_F(FMenus, StayInTheirWindowAtItsEdge)
{
	const TSharedPtr<IMenu> Menu = Open(Owner.ToSharedRef(), FVector2D(390, 290));
	EXPECT_EQ(FSlateRect(350, 250, 400, 290), Menu->GetOwnedWindow()->GetRectInScreen());
}

TEST_F(FMenus, OpenBesideTheirRowAsSubmenus)
{
	const TSharedPtr<IMenu> Menu = App().PushMenu(Owner.ToSharedRef(), FWidgetPath(), MakeBox(50, 40), FVector2D(10, 20),
		FPopupTransitionEffect(FPopupTransitionEffect::SubMenu), true, FVector2D(100, 20));
	EXPECT_EQ(FVector2D(110, 20), Menu->GetOwnedWindow()->GetPositionInScreen());
}

TEST_F(FMenus, FindTheirPlaceAgainWhenTheyGrow)
{
	FVector2D Size(50, 40);
	const TSharedPtr<IMenu> Menu = App().PushMenu(Owner.ToSharedRef(), FWidgetPath(),
		SNew(STestBox).Size_Lambda([&Size]() { return Size; }), FVector2D(10, 250), FPopupTransitionEffect());
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(FVector2D(10, 250), Menu->GetOwnedWindow()->GetPositionInScreen());
	Size = FVector2D(50, 100);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(FSlateRect(10, 150, 60, 250), Menu->GetOwnedWindow()->GetRectInScreen());
}

TEST_F(FMenus, MayOpenOthersWhileTheyClose)
{
	const TSharedPtr<IMenu> Menu = Open(Owner.ToSharedRef(), FVector2D(0, 100));
	Menu->GetOnMenuDismissed().AddLambda([this](TSharedRef<IMenu>) {
		App().PushMenu(Owner.ToSharedRef(), FWidgetPath(), MakeBox(1, 1), FVector2D(0, 0), FPopupTransitionEffect());
	});
	App().DismissAllMenus();
	EXPECT_EQ(1, App().GetMenuStack().GetNumStackLevels());
}

TEST_F(FMenus, CloseByDismissOfTheirOwn)
{
	OpenThree();
	Menus[1]->Dismiss();
	EXPECT_EQ((std::vector<bool>{true, false, false}), GetOpen());
}

namespace
{
class FMenuAnchor : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		Show(SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[SAssignNew(Anchor, SMenuAnchor)
																		.OnGetMenuContent_Lambda([this]() -> TSharedRef<SWidget> {
																			Notes.push_back("asked");
																			return MakeBox(50, 40);
																		})
																		.OnMenuOpenChanged_Lambda([this](bool bOpen) {
																			Notes.push_back(bOpen ? "open" : "closed");
																		})[MakeBox(80, 20)]]);
	}

	TSharedPtr<SMenuAnchor> Anchor;
};
}

TEST_F(FMenuAnchor, AsksForItsContentAtEachOpening)
{
	Anchor->SetIsOpen(true);
	Anchor->SetIsOpen(true);
	EXPECT_EQ((FNotes{"asked", "open"}), TakeNotes());
	Anchor->SetIsOpen(false);
	Anchor->SetIsOpen(true);
	EXPECT_EQ((FNotes{"closed", "asked", "open"}), TakeNotes());
}

TEST_F(FMenuAnchor, OpensBelowItself)
{
	Anchor->SetIsOpen(true);
	EXPECT_EQ(FVector2D(0, 20), Anchor->GetMenuPosition());
}

TEST_F(FMenuAnchor, OpensBesideItselfOnTheRight)
{
	Anchor->SetMenuPlacement(MenuPlacement_MenuRight);
	Anchor->SetIsOpen(true);
	EXPECT_EQ(FVector2D(80, 0), Anchor->GetMenuPosition());
}

TEST_F(FMenuAnchor, NoticesThatItsMenuWasClosedByOthers)
{
	Anchor->SetIsOpen(true);
	App().DismissAllMenus();
	EXPECT_FALSE(Anchor->IsOpen());
	EXPECT_EQ((FNotes{"asked", "open", "closed"}), TakeNotes());
}

TEST_F(FMenuAnchor, DoesNotOpenByTheClickThatClosedIt)
{
	Anchor->SetIsOpen(true);
	App().DismissAllMenus();
	EXPECT_FALSE(Anchor->ShouldOpenDueToClick());
	StandIn::AdvanceTime(0.0f);
	EXPECT_TRUE(Anchor->ShouldOpenDueToClick());
}

TEST_F(FMenuAnchor, ClosesItsMenuWhenItDies)
{
	Anchor->SetIsOpen(true);
	Window->SetContent(SNullWidget::NullWidget);
	Anchor.Reset();
	EXPECT_FALSE(App().AnyMenusVisible());
}

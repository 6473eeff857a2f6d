// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/SlateDriver.h"
#include "ToolMenuFixture.h"
#include "ToolMenuTestContext.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"

namespace
{
/** A menu bar or a tool bar of tool menus at the upper left of a window, and a person who uses it. */
class UToolMenusBarsTest : public FToolMenuUserFixture
{
protected:
	/** Shows a bar of a name, as wide as it wishes or of a fixed width. */
	void ShowBar(const TCHAR* Name, const FToolMenuContext& Context = FToolMenuContext(), float Width = 0.0f)
	{
		const TSharedRef<SBox> Box = SNew(SBox)
										 .HAlign(Width > 0.0f ? HAlign_Fill : HAlign_Left)
										 .VAlign(VAlign_Top)[UToolMenus::Get()->GenerateWidget(Name, Context)];
		if (Width > 0.0f)
		{
			Box->SetWidthOverride(Width);
		}
		User.Show(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[Box]);
	}

	/** The texts that a person reads in the window, separated by "|". */
	FString Read() const
	{
		FString Texts;
		for (const FString& Text : StandIn::CollectTexts(User.Anchor.ToSharedRef()))
		{
			Texts += (Texts.IsEmpty() ? TEXT("") : TEXT("|")) + Text;
		}
		return Texts;
	}

	/** Where a text of the window is. */
	FVector2D Find(const TCHAR* Text) const
	{
		const TSharedPtr<SWidget> Widget = StandIn::FindText(User.Anchor.ToSharedRef(), Text);
		EXPECT_TRUE(Widget.IsValid());
		return Widget.IsValid() ? StandIn::GetCenter(Widget.ToSharedRef()) : FVector2D(0.0f, 0.0f);
	}

	/** Registers a bar of two pull-down menus with an entry each. */
	void RegisterMainMenu()
	{
		UToolMenus* const Menus = UToolMenus::Get();
		UToolMenu* const Bar = Menus->RegisterMenu("Main", NAME_None, EMultiBoxType::MenuBar);
		Bar->AddSubMenu(FToolMenuOwner(), "Heads", "File", FText::FromString(TEXT("File")));
		Bar->AddSubMenu(FToolMenuOwner(), "Heads", "Edit", FText::FromString(TEXT("Edit")));
		Menus->RegisterMenu("Main.File")->AddMenuEntry("S", MakeCounting(TEXT("Exit")));
		Menus->RegisterMenu("Main.Edit")->AddMenuEntry("S", MakeEntry(TEXT("Undo")));
	}

	/** An entry that counts how often it was chosen. */
	FToolMenuEntry MakeCounting(const TCHAR* Name)
	{
		return FToolMenuEntry::InitMenuEntry(Name, FText::FromString(Name), FText::GetEmpty(), FSlateIcon(),
			FUIAction(FExecuteAction::CreateLambda([this]() { ++Runs; }), FCanExecuteAction()));
	}

	/** A button of a tool bar that counts how often it was clicked. */
	FToolMenuEntry MakeButton(const TCHAR* Name)
	{
		return FToolMenuEntry::InitToolBarButton(
			Name, FUIAction(FExecuteAction::CreateLambda([this]() { ++Runs; }), FCanExecuteAction()), FText::FromString(Name));
	}

	/** Registers a tool bar and returns its one section. */
	static FToolMenuSection& RegisterToolBar()
	{
		return UToolMenus::Get()->RegisterMenu("Bar", NAME_None, EMultiBoxType::ToolBar)->AddSection("S");
	}

	int32 Runs = 0;
};
}

TEST_F(UToolMenusBarsTest, ShowTheHeadsOfAMenuBarSideBySide)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	EXPECT_TRUE(IsText(Read(), TEXT("File|Edit")));
}

TEST_F(UToolMenusBarsTest, LayTheHeadsOfAMenuBarOutFromLeftToRight)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	EXPECT_LT(Find(TEXT("File")).X, Find(TEXT("Edit")).X);
}

TEST_F(UToolMenusBarsTest, OpenTheMenuBelowAHeadOnAClick)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.ClickAt(Find(TEXT("File")));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Exit")));
}

TEST_F(UToolMenusBarsTest, PutTheMenuDirectlyBelowItsHead)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	const TSharedPtr<SWidget> Head = StandIn::FindWidgetOfType(User.Anchor.ToSharedRef(), "SMenuBarHead");
	User.ClickAt(Find(TEXT("File")));
	EXPECT_EQ(FSlateApplication::Get().GetMenuStack().GetMenu(0)->GetOwnedWindow()->GetPositionInScreen(),
		Head->GetCachedGeometry().GetAbsolutePosition() + FVector2D(0.0f, Head->GetCachedGeometry().GetAbsoluteSize().Y));
}

TEST_F(UToolMenusBarsTest, RunAnEntryOfAPullDownMenu)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.ClickAt(Find(TEXT("File")));
	User.Click(TEXT("Exit"));
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusBarsTest, CloseThePullDownMenuOfAChosenEntry)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.ClickAt(Find(TEXT("File")));
	User.Click(TEXT("Exit"));
	EXPECT_EQ(User.CountMenus(), 0);
}

TEST_F(UToolMenusBarsTest, CloseThePullDownMenuOnASecondClickOfTheHead)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.ClickAt(Find(TEXT("File")));
	User.ClickAt(Find(TEXT("File")));
	EXPECT_EQ(User.CountMenus(), 0);
}

TEST_F(UToolMenusBarsTest, OpenNothingWhileThePointerOnlyPassesOverTheHeads)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.MoveTo(Find(TEXT("File")));
	EXPECT_EQ(User.CountMenus(), 0);
}

TEST_F(UToolMenusBarsTest, GoOnToTheMenuOfTheNextHeadWhileOneIsOpen)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.ClickAt(Find(TEXT("File")));
	User.MoveTo(Find(TEXT("Edit")));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Undo")));
}

TEST_F(UToolMenusBarsTest, GoOnToTheNextHeadByTheRightKey)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.ClickAt(Find(TEXT("File")));
	User.Press(EKeys::Right);
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Undo")));
}

TEST_F(UToolMenusBarsTest, GoAroundTheEndToTheLastHeadByTheLeftKey)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.ClickAt(Find(TEXT("File")));
	User.Press(EKeys::Left);
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Undo")));
}

TEST_F(UToolMenusBarsTest, AreOpenedAndUsedByKeysAlone)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.Press(EKeys::Tab);
	User.Press(EKeys::Down);
	User.Press(EKeys::Enter);
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusBarsTest, CloseThePullDownMenuOnEscape)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	User.ClickAt(Find(TEXT("File")));
	User.Press(EKeys::Escape);
	EXPECT_EQ(User.CountMenus(), 0);
}

TEST_F(UToolMenusBarsTest, ShowWhatExtendsAPullDownMenu)
{
	RegisterMainMenu();
	ShowBar(TEXT("Main"));
	UToolMenus::Get()->ExtendMenu("Main.File")->AddMenuEntry("Mine", MakeEntry(TEXT("Mine")));
	User.ClickAt(Find(TEXT("File")));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Exit|Mine")));
}

TEST_F(UToolMenusBarsTest, GiveAPullDownMenuTheContextOfTheBar)
{
	RegisterMainMenu();
	UToolMenuTestContext* const Context = NewObject<UToolMenuTestContext>();
	UToolMenuTestContext* Seen = nullptr;
	UToolMenus::Get()->ExtendMenu("Main.File")->AddDynamicSection("Mine", FNewToolMenuDelegate::CreateLambda([&Seen](UToolMenu* InMenu) {
		Seen = InMenu->FindContext<UToolMenuTestContext>();
	}));
	ShowBar(TEXT("Main"), FToolMenuContext(Context));
	User.ClickAt(Find(TEXT("File")));
	EXPECT_EQ(Seen, Context);
}

TEST_F(UToolMenusBarsTest, RefuseAButtonInAMenuBar)
{
	UToolMenus::Get()->RegisterMenu("Main", NAME_None, EMultiBoxType::MenuBar)->AddMenuEntry("S", MakeButton(TEXT("Play")));
	EXPECT_DEATH(UToolMenus::Get()->GenerateWidget("Main", FToolMenuContext()), "not in this stand-in");
}

TEST_F(UToolMenusBarsTest, ShowTheCaptionsOfAToolBar)
{
	FToolMenuSection& Section = RegisterToolBar();
	Section.AddEntry(MakeButton(TEXT("Play")));
	Section.AddEntry(MakeButton(TEXT("Stop")));
	ShowBar(TEXT("Bar"));
	EXPECT_TRUE(IsText(Read(), TEXT("Play|Stop")));
}

TEST_F(UToolMenusBarsTest, ShowNoCaptionsWithSmallIcons)
{
	RegisterToolBar().AddEntry(MakeButton(TEXT("Play")));
	UToolMenus::Get()->FindMenu("Bar")->bToolBarForceSmallIcons = true;
	ShowBar(TEXT("Bar"));
	EXPECT_TRUE(IsText(Read(), TEXT("")));
}

TEST_F(UToolMenusBarsTest, RunAButtonsActionOnAClick)
{
	RegisterToolBar().AddEntry(MakeButton(TEXT("Play")));
	ShowBar(TEXT("Bar"));
	User.ClickAt(Find(TEXT("Play")));
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusBarsTest, RunNoActionThatMayNotRun)
{
	FToolMenuEntry Button = FToolMenuEntry::InitToolBarButton("Play",
		FUIAction(FExecuteAction::CreateLambda([this]() { ++Runs; }), FCanExecuteAction::CreateLambda([]() { return false; })),
		FText::FromString(TEXT("Play")));
	RegisterToolBar().AddEntry(Button);
	ShowBar(TEXT("Bar"));
	User.ClickAt(Find(TEXT("Play")));
	EXPECT_EQ(Runs, 0);
}

TEST_F(UToolMenusBarsTest, HideAButtonWhoseActionIsHidden)
{
	FToolMenuSection& Section = RegisterToolBar();
	Section.AddEntry(FToolMenuEntry::InitToolBarButton("Stop",
		FUIAction(FExecuteAction(), FCanExecuteAction(), FIsActionChecked(), FIsActionButtonVisible::CreateLambda([]() { return false; })),
		FText::FromString(TEXT("Stop"))));
	Section.AddEntry(MakeButton(TEXT("Play")));
	ShowBar(TEXT("Bar"));
	EXPECT_TRUE(IsText(Read(), TEXT("Play")));
}

TEST_F(UToolMenusBarsTest, TakeTheFocusOnlyIfTheBarIsFocusable)
{
	RegisterToolBar().AddEntry(MakeButton(TEXT("Play")));
	UToolMenus::Get()->FindMenu("Bar")->bToolBarIsFocusable = true;
	ShowBar(TEXT("Bar"));
	User.Press(EKeys::Tab);
	User.Press(EKeys::Enter);
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusBarsTest, AskTheContextsCommandListForAButtonsAction)
{
	const TSharedRef<FBindingContext> Binding = MakeShared<FBindingContext>("Test", FText(), NAME_None, NAME_None);
	TSharedPtr<FUICommandInfo> Command;
	FUICommandInfo::MakeCommandInfo(Binding, Command, "Play", FText::FromString(TEXT("Play it")), FText(), FSlateIcon(),
		EUserInterfaceActionType::Button, FInputChord());
	const TSharedRef<FUICommandList> Commands = MakeShared<FUICommandList>();
	Commands->MapAction(Command, FExecuteAction::CreateLambda([this]() { ++Runs; }), FCanExecuteAction());
	FToolMenuEntry Button(FToolMenuOwner(), "Play", EMultiBlockType::ToolBarButton);
	Button = FToolMenuEntry::InitMenuEntry(Command);
	Button.Type = EMultiBlockType::ToolBarButton;
	RegisterToolBar().AddEntry(Button);
	ShowBar(TEXT("Bar"), FToolMenuContext(Commands));
	User.ClickAt(Find(TEXT("Play it")));
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusBarsTest, OpenTheMenuOfAComboButton)
{
	RegisterToolBar().AddEntry(FToolMenuEntry::InitComboButton("Maps", FToolUIActionChoice(),
		FNewToolMenuDelegate::CreateLambda([this](UToolMenu* InMenu) { InMenu->AddMenuEntry("S", MakeEntry(TEXT("Stage"))); }),
		FText::FromString(TEXT("Maps"))));
	ShowBar(TEXT("Bar"));
	User.ClickAt(Find(TEXT("Maps")));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Stage")));
}

TEST_F(UToolMenusBarsTest, ShowWhatExtendsTheMenuOfAComboButton)
{
	RegisterToolBar().AddEntry(FToolMenuEntry::InitComboButton("Maps", FToolUIActionChoice(),
		FNewToolMenuDelegate::CreateLambda([this](UToolMenu* InMenu) { InMenu->AddMenuEntry("S", MakeEntry(TEXT("Stage"))); }),
		FText::FromString(TEXT("Maps"))));
	UToolMenus::Get()->ExtendMenu("Bar.Maps")->AddMenuEntry("Mine", MakeEntry(TEXT("Mine")));
	ShowBar(TEXT("Bar"));
	User.ClickAt(Find(TEXT("Maps")));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Stage|Mine")));
}

TEST_F(UToolMenusBarsTest, ShowNoCaptionOfASimpleComboButton)
{
	RegisterToolBar().AddEntry(FToolMenuEntry::InitComboButton("Modes", FToolUIActionChoice(),
		FNewToolMenuDelegate::CreateLambda([](UToolMenu*) {}), FText::FromString(TEXT("Modes")), FText(), FSlateIcon(), true));
	ShowBar(TEXT("Bar"));
	EXPECT_TRUE(IsText(Read(), TEXT("")));
}

TEST_F(UToolMenusBarsTest, PutALineBetweenTheSectionsOfAToolBar)
{
	RegisterToolBar().AddEntry(MakeButton(TEXT("Play")));
	UToolMenus::Get()->FindMenu("Bar")->AddSection("T").AddEntry(MakeButton(TEXT("Maps")));
	ShowBar(TEXT("Bar"));
	EXPECT_GT(Find(TEXT("Maps")).X - Find(TEXT("Play")).X, 60.0f);
}

TEST_F(UToolMenusBarsTest, LeaveOutTheButtonsThatHaveNoRoom)
{
	FToolMenuSection& Section = RegisterToolBar();
	for (const TCHAR* Name : {TEXT("One"), TEXT("Two"), TEXT("Three"), TEXT("Four")})
	{
		Section.AddEntry(MakeButton(Name));
	}
	ShowBar(TEXT("Bar"), FToolMenuContext(), 150.0f);
	const TSharedPtr<SWidget> Row = StandIn::FindWidgetOfType(User.Anchor.ToSharedRef(), "SToolBarRow");
	FArrangedChildren Arranged(EVisibility::Visible);
	Row->ArrangeChildren(Row->GetCachedGeometry(), Arranged);
	EXPECT_EQ(Arranged.Num(), 3);
}

TEST_F(UToolMenusBarsTest, OfferTheButtonsThatHaveNoRoomInAMenuAtTheEnd)
{
	FToolMenuSection& Section = RegisterToolBar();
	for (const TCHAR* Name : {TEXT("One"), TEXT("Two"), TEXT("Three"), TEXT("Four")})
	{
		Section.AddEntry(MakeButton(Name));
	}
	ShowBar(TEXT("Bar"), FToolMenuContext(), 150.0f);
	User.ClickAt(FVector2D(144.0f, 30.0f));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Three|Four")));
}

TEST_F(UToolMenusBarsTest, RunAButtonThatIsInTheMenuAtTheEnd)
{
	FToolMenuSection& Section = RegisterToolBar();
	for (const TCHAR* Name : {TEXT("One"), TEXT("Two"), TEXT("Three"), TEXT("Four")})
	{
		Section.AddEntry(MakeButton(Name));
	}
	ShowBar(TEXT("Bar"), FToolMenuContext(), 150.0f);
	User.ClickAt(FVector2D(144.0f, 30.0f));
	User.Click(TEXT("Four"));
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusBarsTest, RunTheLegacyDelegateOfAToolBarsSection)
{
	UToolMenus::Get()
		->RegisterMenu("Bar", NAME_None, EMultiBoxType::ToolBar)
		->AddDynamicSection("S", FNewToolBarDelegateLegacy::CreateLambda([](FToolBarBuilder& Builder, UToolMenu*) {
			Builder.AddToolBarButton(FUIAction(), NAME_None, FText::FromString(TEXT("Legacy")));
		}));
	ShowBar(TEXT("Bar"));
	EXPECT_TRUE(IsText(Read(), TEXT("Legacy")));
}

TEST_F(UToolMenusBarsTest, ApplyTheContextsToolBarExtensions)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddToolBarExtension("Play", EExtensionHook::After, nullptr,
		FToolBarExtensionDelegate::CreateLambda(
			[](FToolBarBuilder& Builder) { Builder.AddToolBarButton(FUIAction(), NAME_None, FText::FromString(TEXT("Added"))); }));
	RegisterToolBar().AddEntry(MakeButton(TEXT("Play")));
	ShowBar(TEXT("Bar"), FToolMenuContext(nullptr, Extender));
	EXPECT_TRUE(IsText(Read(), TEXT("Play|Added")));
}

TEST_F(UToolMenusBarsTest, ApplyTheContextsMenuBarExtensions)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddMenuBarExtension("File", EExtensionHook::After, nullptr,
		FMenuBarExtensionDelegate::CreateLambda(
			[](FMenuBarBuilder& Builder) { Builder.AddPullDownMenu(FText::FromString(TEXT("Added")), FText(), FNewMenuDelegate()); }));
	RegisterMainMenu();
	ShowBar(TEXT("Main"), FToolMenuContext(nullptr, Extender));
	EXPECT_TRUE(IsText(Read(), TEXT("File|Added|Edit")));
}

TEST_F(UToolMenusBarsTest, ShowAButtonAddedWhileTheBarIsShownAfterTheNextTick)
{
	RegisterToolBar().AddEntry(MakeButton(TEXT("Play")));
	ShowBar(TEXT("Bar"));
	UToolMenus::Get()->ExtendMenu("Bar")->FindOrAddSection("S").AddEntry(MakeButton(TEXT("Late")));
	UToolMenus::Get()->RefreshMenuWidget("Bar");
	User.Wait(0.0f);
	EXPECT_TRUE(IsText(Read(), TEXT("Play|Late")));
}

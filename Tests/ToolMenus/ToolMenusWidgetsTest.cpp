// Copyright The Tintmill authors. All rights reserved.

#include "Containers/Ticker.h"
#include "ToolMenuFixture.h"
#include "ToolMenuTestContext.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/SNullWidget.h"

using UToolMenusWidgetsTest = FToolMenuUserFixture;

namespace ToolMenusWidgetsTestPrivate
{
FToolMenuEntry MakeAction(const TCHAR* Name, TFunction<void()> Run)
{
	return FToolMenuEntry::InitMenuEntry(Name, FText::FromString(Name), FText::GetEmpty(), FSlateIcon(),
		FUIAction(FExecuteAction::CreateLambda([Run]() { Run(); }), FCanExecuteAction()));
}

FToolMenuEntry MakeToggle(const TCHAR* Name, bool& bState)
{
	const FUIAction Action(FExecuteAction::CreateLambda([&bState]() { bState = !bState; }), FCanExecuteAction(),
		FIsActionChecked::CreateLambda([&bState]() { return bState; }));
	return FToolMenuEntry::InitMenuEntry(
		Name, FText::FromString(Name), FText::GetEmpty(), FSlateIcon(), Action, EUserInterfaceActionType::ToggleButton);
}

FToolMenuEntry MakeSub(const TCHAR* Name, TFunction<void(UToolMenu*)> Fill, const bool bOnClick = false)
{
	return FToolMenuEntry::InitSubMenu(Name, FText::FromString(Name), FText::GetEmpty(),
		FNewToolMenuDelegate::CreateLambda([Fill](UToolMenu* InMenu) { Fill(InMenu); }), bOnClick);
}
}

TEST_F(UToolMenusWidgetsTest, ShowTheEntriesInOrder)
{
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("A")));
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("B")));
	Open(TEXT("M"));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("A|B")));
}

TEST_F(UToolMenusWidgetsTest, ShowTheHeadingOfASectionWithEntries)
{
	UToolMenus::Get()->ExtendMenu("M")->AddSection("S", FText::FromString(TEXT("Color Management"))).AddEntry(MakeEntry(TEXT("A")));
	Open(TEXT("M"));
	EXPECT_TRUE(IsText(User.GetHeadings(), TEXT("Color Management")));
}

TEST_F(UToolMenusWidgetsTest, ShowNoHeadingOfASectionWithoutEntries)
{
	UToolMenus::Get()->ExtendMenu("M")->AddSection("S", FText::FromString(TEXT("Color Management")));
	Open(TEXT("M"));
	EXPECT_TRUE(IsText(User.GetHeadings(), TEXT("")));
}

TEST_F(UToolMenusWidgetsTest, ShowOneHeadingForASectionOfSeveralOwners)
{
	UToolMenus::Get()->RegisterMenu("P")->AddSection("S", FText::FromString(TEXT("One"))).AddEntry(MakeEntry(TEXT("A")));
	UToolMenus::Get()->RegisterMenu("M", "P")->AddSection("S", FText::FromString(TEXT("Two"))).AddEntry(MakeEntry(TEXT("B")));
	Open(TEXT("M"));
	EXPECT_TRUE(IsText(User.GetHeadings(), TEXT("One")));
}

TEST_F(UToolMenusWidgetsTest, RunAnEntrysActionOnAClick)
{
	int32 Runs = 0;
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", ToolMenusWidgetsTestPrivate::MakeAction(TEXT("A"), [&Runs]() { ++Runs; }));
	Open(TEXT("M"));
	User.Click(TEXT("A"));
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusWidgetsTest, AreDismissedBeforeAnEntrysActionRuns)
{
	int32 MenusDuringAction = -1;
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry(
		"S", ToolMenusWidgetsTestPrivate::MakeAction(TEXT("A"), [this, &MenusDuringAction]() { MenusDuringAction = User.CountMenus(); }));
	Open(TEXT("M"));
	User.Click(TEXT("A"));
	EXPECT_EQ(MenusDuringAction, 0);
}

TEST_F(UToolMenusWidgetsTest, StayOpenAfterASelectionIfTheMenuSaysSo)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->bShouldCloseWindowAfterMenuSelection = false;
	Menu->AddMenuEntry("S", MakeEntry(TEXT("A")));
	Open(TEXT("M"));
	User.Click(TEXT("A"));
	EXPECT_EQ(User.CountMenus(), 1);
}

TEST_F(UToolMenusWidgetsTest, GiveAContextActionTheContext)
{
	UToolMenuTestContext* Object = NewObject<UToolMenuTestContext>();
	UToolMenuTestContext* Seen = nullptr;
	const FToolMenuExecuteAction Execute = FToolMenuExecuteAction::CreateLambda(
		[&Seen](const FToolMenuContext& Context) { Seen = Context.FindContext<UToolMenuTestContext>(); });
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry(
		"S", FToolMenuEntry::InitMenuEntry("A", FText::FromString(TEXT("A")), FText(), FSlateIcon(), FToolUIAction(Execute)));
	Open(TEXT("M"), Object);
	User.Click(TEXT("A"));
	EXPECT_EQ(Seen, Object);
}

TEST_F(UToolMenusWidgetsTest, KeepContextObjectsOverACollectionWhileTheyAreOpen)
{
	const TWeakObjectPtr<UToolMenuTestContext> Object = NewObject<UToolMenuTestContext>();
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("A")));
	Open(TEXT("M"), Object.Get());
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Object.IsValid());
}

TEST_F(UToolMenusWidgetsTest, LetContextObjectsGoOnceTheyAreClosed)
{
	const TWeakObjectPtr<UToolMenuTestContext> Object = NewObject<UToolMenuTestContext>();
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("A")));
	Open(TEXT("M"), Object.Get());
	FSlateApplication::Get().DismissAllMenus();
	User.Wait(0.0f);
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Object.IsValid());
}

TEST_F(UToolMenusWidgetsTest, OpenASubMenuAfterACollection)
{
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S",
		ToolMenusWidgetsTestPrivate::MakeSub(TEXT("Sub"), [](UToolMenu* InMenu) { InMenu->AddMenuEntry("T", MakeEntry(TEXT("Inner"))); }));
	Open(TEXT("M"));
	CollectGarbage(RF_NoFlags);
	User.Hover(TEXT("Sub"));
	EXPECT_TRUE(IsText(User.GetLabels(1), TEXT("Inner")));
}

TEST_F(UToolMenusWidgetsTest, OpenASubMenuOnHoverAtOnce)
{
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", ToolMenusWidgetsTestPrivate::MakeSub(TEXT("Sub"), [](UToolMenu*) {}));
	Open(TEXT("M"));
	User.Hover(TEXT("Sub"));
	EXPECT_TRUE(User.FindRow(TEXT("Sub")).bSubMenuOpen);
}

TEST_F(UToolMenusWidgetsTest, RunTheSubMenusDelegateAtEveryOpening)
{
	int32 Runs = 0;
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry(
		"S", ToolMenusWidgetsTestPrivate::MakeSub(TEXT("Sub"), [&Runs](UToolMenu*) { ++Runs; }));
	Open(TEXT("M"));
	User.Hover(TEXT("Sub"));
	FSlateApplication::Get().DismissAllMenus();
	User.MoveTo(FVector2D(1000.0f, 800.0f));
	Open(TEXT("M"));
	User.Hover(TEXT("Sub"));
	EXPECT_EQ(Runs, 2);
}

TEST_F(UToolMenusWidgetsTest, DoNotRunTheSubMenusDelegateBeforeItIsOpened)
{
	int32 Runs = 0;
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry(
		"S", ToolMenusWidgetsTestPrivate::MakeSub(TEXT("Sub"), [&Runs](UToolMenu*) { ++Runs; }));
	Open(TEXT("M"));
	EXPECT_EQ(Runs, 0);
}

TEST_F(UToolMenusWidgetsTest, ShowAWidgetEntry)
{
	const TSharedRef<SWidget> Widget = SNew(SBox).WidthOverride(50.0f).HeightOverride(50.0f);
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", FToolMenuEntry::InitWidget("W", Widget, FText::GetEmpty(), true, false));
	Open(TEXT("M"));
	EXPECT_EQ(Widget->GetCachedGeometry().GetLocalSize().Y, 50.0f);
}

TEST_F(UToolMenusWidgetsTest, ShowTheRowsOfAMenuInsideAWidgetEntry)
{
	UToolMenu* Inner = UToolMenus::Get()->RegisterMenu("Inner");
	Inner->AddMenuEntry("S", MakeEntry(TEXT("A")));
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry(
		"S", FToolMenuEntry::InitWidget("W", UToolMenus::Get()->GenerateWidget(Inner), FText::GetEmpty(), true, false));
	Open(TEXT("M"));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("A")));
}

TEST_F(UToolMenusWidgetsTest, OpenASubMenuOfARegisteredMenuThatIsShownAsItIs)
{
	UToolMenu* Inner = UToolMenus::Get()->RegisterMenu("Inner");
	Inner->AddMenuEntry("S",
		ToolMenusWidgetsTestPrivate::MakeSub(TEXT("Sub"), [](UToolMenu* InMenu) { InMenu->AddMenuEntry("T", MakeEntry(TEXT("Deep"))); }));
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry(
		"S", FToolMenuEntry::InitWidget("W", UToolMenus::Get()->GenerateWidget(Inner), FText::GetEmpty(), true, false));
	Open(TEXT("M"));
	User.Hover(TEXT("Sub"));
	EXPECT_TRUE(IsText(User.GetLabels(1), TEXT("Deep")));
}

TEST_F(UToolMenusWidgetsTest, ToggleOnTheCheckBoxAndStayOpen)
{
	bool bState = false;
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", ToolMenusWidgetsTestPrivate::MakeToggle(TEXT("Toggle"), bState));
	Open(TEXT("M"));
	User.ClickCheck(TEXT("Toggle"));
	EXPECT_TRUE(bState && User.CountMenus() == 1);
}

TEST_F(UToolMenusWidgetsTest, ToggleOnTheLabelAndClose)
{
	bool bState = false;
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", ToolMenusWidgetsTestPrivate::MakeToggle(TEXT("Toggle"), bState));
	Open(TEXT("M"));
	User.Click(TEXT("Toggle"));
	EXPECT_TRUE(bState && User.CountMenus() == 0);
}

TEST_F(UToolMenusWidgetsTest, ShowTheCheckStateAsItIsNow)
{
	bool bState = false;
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", ToolMenusWidgetsTestPrivate::MakeToggle(TEXT("Toggle"), bState));
	Open(TEXT("M"));
	bState = true;
	EXPECT_EQ(User.FindRow(TEXT("Toggle")).CheckState, ECheckBoxState::Checked);
}

TEST_F(UToolMenusWidgetsTest, AreNotMadeAnewByARefreshWhileTheyArePoppedUp)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddMenuEntry("S", MakeEntry(TEXT("A")));
	Open(TEXT("M"));
	Menu->AddMenuEntry("S", MakeEntry(TEXT("B")));
	UToolMenus::Get()->RefreshMenuWidget("M");
	User.Wait(0.0f);
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("A")));
}

TEST_F(UToolMenusWidgetsTest, AreMadeAnewByARefreshInsideAPanel)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddMenuEntry("S", MakeEntry(TEXT("A")));
	User.Show(UToolMenus::Get()->GenerateWidget("M", FToolMenuContext()));
	Menu->AddMenuEntry("S", MakeEntry(TEXT("B")));
	UToolMenus::Get()->RefreshMenuWidget("M");
	EXPECT_EQ(StandIn::ListMenuRows(User.Anchor.ToSharedRef()).Num(), 2);
}

TEST_F(UToolMenusWidgetsTest, AreMadeAnewAtTheNextTickWhenAMenuIsExtended)
{
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("A")));
	User.Show(UToolMenus::Get()->GenerateWidget("M", FToolMenuContext()));
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("B")));
	const int32 NumBefore = StandIn::ListMenuRows(User.Anchor.ToSharedRef()).Num();
	FTicker::GetCoreTicker().Tick(0.0f);
	const int32 NumAfter = StandIn::ListMenuRows(User.Anchor.ToSharedRef()).Num();
	EXPECT_TRUE(NumBefore == 1 && NumAfter == 2);
}

TEST_F(UToolMenusWidgetsTest, KeepAWidgetThatGoesWithThemUntilItsActionHasRun)
{
	TWeakPtr<SWidget> Weak;
	bool bAliveDuringAction = false;
	{
		UToolMenu* Inner = UToolMenus::Get()->RegisterMenu("Inner");
		Inner->AddMenuEntry("S", ToolMenusWidgetsTestPrivate::MakeAction(TEXT("A"), [&]() { bAliveDuringAction = Weak.IsValid(); }));
		const TSharedRef<SWidget> Holder = SNew(SBox)[UToolMenus::Get()->GenerateWidget(Inner)];
		Weak = Holder;
		FMenuBuilder Builder(true, nullptr);
		Builder.AddWidget(Holder, FText::GetEmpty(), true);
		User.Open(Builder.MakeWidget());
	}
	User.Click(TEXT("A"));
	EXPECT_TRUE(bAliveDuringAction);
}

TEST_F(UToolMenusWidgetsTest, TakeCommandsFromTheContext)
{
	const TSharedRef<FBindingContext> Context = MakeShared<FBindingContext>("Context", FText(), NAME_None, NAME_None);
	TSharedPtr<FUICommandInfo> Command;
	FUICommandInfo::MakeCommandInfo(
		Context, Command, "C", FText::FromString(TEXT("C")), FText(), FSlateIcon(), EUserInterfaceActionType::Button, FInputChord());
	int32 Runs = 0;
	const TSharedRef<FUICommandList> Commands = MakeShared<FUICommandList>();
	Commands->MapAction(Command, FExecuteAction::CreateLambda([&Runs]() { ++Runs; }));
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", FToolMenuEntry::InitMenuEntry(Command));
	Open(TEXT("M"), FToolMenuContext(Commands));
	User.Click(TEXT("C"));
	EXPECT_EQ(Runs, 1);
}

TEST_F(UToolMenusWidgetsTest, ApplyTheContextsExtender)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddMenuExtension("S", EExtensionHook::After, nullptr, FMenuExtensionDelegate::CreateLambda([](FMenuBuilder& Builder) {
		Builder.AddMenuEntry(FText::FromString(TEXT("Extra")), FText(), FSlateIcon(), FUIAction());
	}));
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("A")));
	Open(TEXT("M"), FToolMenuContext(nullptr, Extender));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("A|Extra")));
}

TEST_F(UToolMenusWidgetsTest, OfAVerticalToolBarAreRefused)
{
	UToolMenus::Get()->RegisterMenu("Bar", NAME_None, EMultiBoxType::VerticalToolBar);
	EXPECT_DEATH(UToolMenus::Get()->GenerateWidget("Bar", FToolMenuContext()), "not in this stand-in");
}

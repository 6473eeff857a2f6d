// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/LogRecord.h"
#include "ToolMenuFixture.h"
#include "ToolMenuTestContext.h"

using UToolMenusAssemblyTest = FToolMenuFixture;

namespace ToolMenusAssemblyTestPrivate
{
void AddSectionAt(UToolMenu* Menu, const TCHAR* Name, const TCHAR* Target, const EToolMenuInsertType Type)
{
	Menu->AddSection(Name, TAttribute<FText>(), FToolMenuInsert(Target, Type));
}
}

TEST_F(UToolMenusAssemblyTest, PutsTheParentsContentFirst)
{
	UToolMenus::Get()->RegisterMenu("P")->AddSection("FromParent");
	UToolMenus::Get()->RegisterMenu("M", "P")->AddSection("FromChild");
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("FromParent()FromChild()")));
}

TEST_F(UToolMenusAssemblyTest, MergesSectionsOfOneNameFromParentAndChild)
{
	UToolMenus::Get()->RegisterMenu("P")->AddMenuEntry("S", MakeEntry(TEXT("A")));
	UToolMenus::Get()->RegisterMenu("M", "P")->AddMenuEntry("S", MakeEntry(TEXT("B")));
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("S(A,B)")));
}

TEST_F(UToolMenusAssemblyTest, ShowsAnEntryThatParentAndChildHaveTwice)
{
	UToolMenus::Get()->RegisterMenu("P")->AddMenuEntry("S", MakeEntry(TEXT("A")));
	UToolMenus::Get()->RegisterMenu("M", "P")->AddMenuEntry("S", MakeEntry(TEXT("A")));
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("S(A,A)")));
}

TEST_F(UToolMenusAssemblyTest, LeavesTheRegistrationAsItIs)
{
	UToolMenu* Parent = UToolMenus::Get()->RegisterMenu("P");
	Parent->AddMenuEntry("S", MakeEntry(TEXT("A")));
	UToolMenus::Get()->RegisterMenu("M", "P")->AddMenuEntry("S", MakeEntry(TEXT("B")));
	Generate(TEXT("M"));
	EXPECT_TRUE(IsText(Describe(Parent), TEXT("S(A)")));
}

TEST_F(UToolMenusAssemblyTest, AnExtensionMadeBeforeTheRegistrationComesAfterIt)
{
	UToolMenus::Get()->ExtendMenu("M")->AddSection("Extension");
	UToolMenus::Get()->RegisterMenu("M")->AddSection("Default");
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("Default()Extension()")));
}

TEST_F(UToolMenusAssemblyTest, AnEntryAddedBeforeTheRegistrationComesAfterItsEntries)
{
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("Extension")));
	UToolMenus::Get()->RegisterMenu("M")->AddMenuEntry("S", MakeEntry(TEXT("Default")));
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("S(Default,Extension)")));
}

TEST_F(UToolMenusAssemblyTest, WhatIsAddedAfterExtendMenuIsAnExtension)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	UToolMenus::Get()->ExtendMenu("M")->AddSection("Extension");
	UToolMenus::Get()->RegisterMenu("N", "M")->AddSection("Child");
	Menu->AddSection("Later");
	EXPECT_TRUE(IsText(Generate(TEXT("N")), TEXT("Extension()Later()Child()")));
}

TEST_F(UToolMenusAssemblyTest, InsertsASectionBeforeItsTarget)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddSection("A");
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("B"), TEXT("A"), EToolMenuInsertType::Before);
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("B()A()")));
}

TEST_F(UToolMenusAssemblyTest, InsertsASectionAfterItsTarget)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddSection("A");
	Menu->AddSection("C");
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("B"), TEXT("A"), EToolMenuInsertType::After);
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("A()B()C()")));
}

TEST_F(UToolMenusAssemblyTest, InsertsASectionFirst)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddSection("A");
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("B"), TEXT("None"), EToolMenuInsertType::First);
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("B()A()")));
}

TEST_F(UToolMenusAssemblyTest, KeepsTheOrderOfSectionsForOnePosition)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddSection("A");
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("B"), TEXT("A"), EToolMenuInsertType::After);
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("C"), TEXT("A"), EToolMenuInsertType::After);
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("A()B()C()")));
}

TEST_F(UToolMenusAssemblyTest, FindsATargetThatIsAddedLater)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("C"), TEXT("B"), EToolMenuInsertType::After);
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("B"), TEXT("A"), EToolMenuInsertType::After);
	Menu->AddSection("A");
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("A()B()C()")));
}

TEST_F(UToolMenusAssemblyTest, FindsATargetThatADynamicSectionOfTheParentMakes)
{
	UToolMenus::Get()->RegisterMenu("P")->AddDynamicSection("Base", FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) {
		InMenu->AddSection("ViewMode");
		InMenu->AddSection("Exposure");
	}));
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M", "P");
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("Mine"), TEXT("ViewMode"), EToolMenuInsertType::After);
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("ViewMode()Mine()Exposure()")));
}

TEST_F(UToolMenusAssemblyTest, DropsASectionWhoseTargetNeverAppears)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddSection("A");
	ToolMenusAssemblyTestPrivate::AddSectionAt(Menu, TEXT("B"), TEXT("Nowhere"), EToolMenuInsertType::After);
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("A()")));
}

TEST_F(UToolMenusAssemblyTest, WarnsOfASectionWhoseTargetNeverAppears)
{
	int32 Warnings = 0;
	const FDelegateHandle Handle = StandIn::OnLogRecord().AddLambda([&Warnings](const StandIn::FLogRecord& Record) {
		Warnings += Record.Category == FName("LogToolMenus") && Record.Verbosity == ELogVerbosity::Warning ? 1 : 0;
	});
	ToolMenusAssemblyTestPrivate::AddSectionAt(UToolMenus::Get()->ExtendMenu("M"), TEXT("B"), TEXT("Nowhere"), EToolMenuInsertType::After);
	Generate(TEXT("M"));
	StandIn::OnLogRecord().Remove(Handle);
	EXPECT_EQ(Warnings, 1);
}

TEST_F(UToolMenusAssemblyTest, InsertsAnEntryBeforeItsTarget)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddMenuEntry("S", MakeEntry(TEXT("A")));
	Menu->AddMenuEntry("S", MakeEntryAt(TEXT("B"), TEXT("A"), EToolMenuInsertType::Before));
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("S(B,A)")));
}

TEST_F(UToolMenusAssemblyTest, InsertsAnEntryFirst)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("M");
	Menu->AddMenuEntry("S", MakeEntry(TEXT("A")));
	Menu->AddMenuEntry("S", MakeEntryAt(TEXT("B"), TEXT("None"), EToolMenuInsertType::First));
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("S(B,A)")));
}

TEST_F(UToolMenusAssemblyTest, InsertsAnEntryAfterOneOfTheParent)
{
	UToolMenu* Parent = UToolMenus::Get()->RegisterMenu("P");
	Parent->AddMenuEntry("S", MakeEntry(TEXT("A")));
	Parent->AddMenuEntry("S", MakeEntry(TEXT("C")));
	UToolMenus::Get()->RegisterMenu("M", "P")->AddMenuEntry("S", MakeEntryAt(TEXT("B"), TEXT("A"), EToolMenuInsertType::After));
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("S(A,B,C)")));
}

TEST_F(UToolMenusAssemblyTest, DropsAnEntryWhoseTargetNeverAppears)
{
	UToolMenus::Get()->ExtendMenu("M")->AddMenuEntry("S", MakeEntryAt(TEXT("B"), TEXT("Nowhere"), EToolMenuInsertType::Before));
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("S()")));
}

TEST_F(UToolMenusAssemblyTest, PutsWhatADynamicSectionMakesInItsPlace)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddSection("A");
	Menu->AddDynamicSection("D", FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) {
		InMenu->AddSection("B");
		InMenu->AddSection("C");
	}));
	Menu->AddSection("E");
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("A()B()C()E()")));
}

TEST_F(UToolMenusAssemblyTest, RunsADynamicSectionAtEveryGeneration)
{
	int32 Runs = 0;
	UToolMenus::Get()->RegisterMenu("M")->AddDynamicSection("D", FNewToolMenuDelegate::CreateLambda([&Runs](UToolMenu*) { ++Runs; }));
	Generate(TEXT("M"));
	Generate(TEXT("M"));
	EXPECT_EQ(Runs, 2);
}

TEST_F(UToolMenusAssemblyTest, GivesADynamicSectionTheContext)
{
	UToolMenuTestContext* Object = NewObject<UToolMenuTestContext>();
	UToolMenuTestContext* Seen = nullptr;
	UToolMenus::Get()->RegisterMenu("M")->AddDynamicSection(
		"D", FNewToolMenuDelegate::CreateLambda([&Seen](UToolMenu* InMenu) { Seen = InMenu->FindContext<UToolMenuTestContext>(); }));
	Generate(TEXT("M"), Object);
	EXPECT_EQ(Seen, Object);
}

TEST_F(UToolMenusAssemblyTest, PutsWhatADynamicEntryMakesInItsPlace)
{
	FToolMenuSection& Section = UToolMenus::Get()->RegisterMenu("M")->AddSection("S");
	Section.AddEntry(MakeEntry(TEXT("A")));
	Section.AddDynamicEntry(
		"D", FNewToolMenuSectionDelegate::CreateLambda([](FToolMenuSection& InSection) { InSection.AddEntry(MakeEntry(TEXT("B"))); }));
	Section.AddEntry(MakeEntry(TEXT("C")));
	EXPECT_TRUE(IsText(Generate(TEXT("M")), TEXT("S(A,B,C)")));
}

TEST_F(UToolMenusAssemblyTest, GivesADynamicEntryTheContext)
{
	UToolMenuTestContext* Object = NewObject<UToolMenuTestContext>();
	UToolMenuTestContext* Seen = nullptr;
	UToolMenus::Get()->RegisterMenu("M")->AddSection("S").AddDynamicEntry(
		"D", FNewToolMenuSectionDelegate::CreateLambda([&Seen](FToolMenuSection& In) { Seen = In.FindContext<UToolMenuTestContext>(); }));
	Generate(TEXT("M"), Object);
	EXPECT_EQ(Seen, Object);
}

TEST_F(UToolMenusAssemblyTest, OfAnUnknownMenuGivesAnEmptyMenu)
{
	EXPECT_TRUE(IsText(Generate(TEXT("Unknown")), TEXT("")));
}

TEST_F(UToolMenusAssemblyTest, OfMenusThatAreEachOthersParentEnds)
{
	UToolMenus::Get()->RegisterMenu("A", "B")->AddSection("FromA");
	UToolMenus::Get()->RegisterMenu("B", "A")->AddSection("FromB");
	EXPECT_TRUE(IsText(Generate(TEXT("A")), TEXT("FromB()FromA()")));
}

TEST_F(UToolMenusAssemblyTest, OfASubMenuRunsItsDelegateEachTime)
{
	int32 Runs = 0;
	UToolMenus::Get()->RegisterMenu("M")->AddSection("S").AddSubMenu(
		"Sub", FText(), FText(), FNewToolMenuDelegate::CreateLambda([&Runs](UToolMenu*) { ++Runs; }));
	UToolMenu* Generated = UToolMenus::Get()->GenerateMenu("M", FToolMenuContext());
	UToolMenus::Get()->GenerateSubMenu(Generated, "Sub");
	UToolMenus::Get()->GenerateSubMenu(Generated, "Sub");
	EXPECT_EQ(Runs, 2);
}

TEST_F(UToolMenusAssemblyTest, OfASubMenuStartsFromAnEmptyMenuEachTime)
{
	UToolMenus::Get()->RegisterMenu("M")->AddSection("S").AddSubMenu("Sub", FText(), FText(),
		FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) { InMenu->AddMenuEntry("T", MakeEntry(TEXT("None"))); }));
	UToolMenu* Generated = UToolMenus::Get()->GenerateMenu("M", FToolMenuContext());
	UToolMenus::Get()->GenerateSubMenu(Generated, "Sub");
	EXPECT_TRUE(IsText(Describe(UToolMenus::Get()->GenerateSubMenu(Generated, "Sub")), TEXT("T(None)")));
}

TEST_F(UToolMenusAssemblyTest, OfASubMenuIsNamedAfterParentAndEntry)
{
	UToolMenus::Get()->RegisterMenu("M")->AddSection("S").AddSubMenu("Sub", FText(), FText(), FNewToolMenuDelegate());
	UToolMenu* Generated = UToolMenus::Get()->GenerateMenu("M", FToolMenuContext());
	EXPECT_TRUE(IsText(UToolMenus::Get()->GenerateSubMenu(Generated, "Sub")->MenuName.ToString(), TEXT("M.Sub")));
}

TEST_F(UToolMenusAssemblyTest, OfASubMenuLayersTheMenuNamedAfterParentAndEntryOnTop)
{
	UToolMenus::Get()->RegisterMenu("M")->AddSection("S").AddSubMenu("Sub", FText(), FText(),
		FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) { InMenu->AddMenuEntry("T", MakeEntry(TEXT("A"))); }));
	UToolMenus::Get()->ExtendMenu("M.Sub")->AddMenuEntry("T", MakeEntry(TEXT("B")));
	UToolMenu* Generated = UToolMenus::Get()->GenerateMenu("M", FToolMenuContext());
	EXPECT_TRUE(IsText(Describe(UToolMenus::Get()->GenerateSubMenu(Generated, "Sub")), TEXT("T(A,B)")));
}

TEST_F(UToolMenusAssemblyTest, OfASubMenuKnowsItsParent)
{
	const UToolMenu* Seen = nullptr;
	UToolMenus::Get()->RegisterMenu("M")->AddSection("S").AddSubMenu(
		"Sub", FText(), FText(), FNewToolMenuDelegate::CreateLambda([&Seen](UToolMenu* InMenu) { Seen = InMenu->SubMenuParent; }));
	UToolMenu* Generated = UToolMenus::Get()->GenerateMenu("M", FToolMenuContext());
	UToolMenus::Get()->GenerateSubMenu(Generated, "Sub");
	EXPECT_EQ(Seen, Generated);
}

TEST_F(UToolMenusAssemblyTest, OfASubMenuCarriesTheContextOfItsParent)
{
	UToolMenuTestContext* Object = NewObject<UToolMenuTestContext>();
	UToolMenuTestContext* Seen = nullptr;
	UToolMenus::Get()->RegisterMenu("M")->AddSection("S").AddSubMenu("Sub", FText(), FText(),
		FNewToolMenuDelegate::CreateLambda([&Seen](UToolMenu* InMenu) { Seen = InMenu->FindContext<UToolMenuTestContext>(); }));
	UToolMenus::Get()->GenerateSubMenu(UToolMenus::Get()->GenerateMenu("M", Object), "Sub");
	EXPECT_EQ(Seen, Object);
}

TEST_F(UToolMenusAssemblyTest, OfASubMenuOfAnUnknownEntryGivesNull)
{
	UToolMenus::Get()->RegisterMenu("M");
	EXPECT_EQ(UToolMenus::Get()->GenerateSubMenu(UToolMenus::Get()->GenerateMenu("M", FToolMenuContext()), "Sub"), nullptr);
}

// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenuSection.h"
#include "ToolMenuFixture.h"

using FToolMenuSectionTest = FToolMenuFixture;

TEST_F(FToolMenuSectionTest, AddEntryReplacesAnEntryOfTheSameNameInItsPlace)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	FToolMenuSection& Section = Menu->AddSection("S");
	Section.AddEntry(MakeEntry(TEXT("A")));
	Section.AddEntry(MakeEntry(TEXT("B")));
	Section.AddEntry(MakeEntry(TEXT("a")));
	EXPECT_TRUE(IsText(Describe(Menu), TEXT("S(A,B)")));
}

TEST_F(FToolMenuSectionTest, AddEntryTakesTheNewContentOfAReplacedEntry)
{
	FToolMenuSection Section;
	Section.AddEntry(MakeEntry(TEXT("A")));
	FToolMenuEntry Replacement = MakeEntry(TEXT("A"));
	Replacement.Label = FText::FromString(TEXT("New"));
	EXPECT_TRUE(IsText(Section.AddEntry(Replacement).Label.Get().ToString(), TEXT("New")));
}

TEST_F(FToolMenuSectionTest, AddEntryTakesTheNewOwnerOfAReplacedEntry)
{
	FToolMenuSection Section;
	Section.AddEntry(MakeEntry(TEXT("A")));
	FToolMenuOwnerScoped Scope("B");
	EXPECT_TRUE(Section.AddEntry(MakeEntry(TEXT("A"))).Owner == FToolMenuOwner("B"));
}

TEST_F(FToolMenuSectionTest, AddEntryAlwaysAppendsEntriesWithoutName)
{
	FToolMenuSection Section;
	Section.AddEntry(MakeEntry(TEXT("None")));
	Section.AddEntry(MakeEntry(TEXT("None")));
	EXPECT_EQ(Section.Blocks.Num(), 2);
}

TEST_F(FToolMenuSectionTest, AddEntryKeepsTheOwnerStampedWhenTheEntryWasMade)
{
	FToolMenuSection Section;
	FToolMenuEntry Entry;
	{
		FToolMenuOwnerScoped Scope("Maker");
		Entry = MakeEntry(TEXT("A"));
	}
	FToolMenuOwnerScoped Scope("Adder");
	EXPECT_TRUE(Section.AddEntry(Entry).Owner == FToolMenuOwner("Maker"));
}

TEST_F(FToolMenuSectionTest, FindEntryGivesNullForAnUnknownName)
{
	EXPECT_EQ(FToolMenuSection().FindEntry("A"), nullptr);
}

TEST_F(FToolMenuSectionTest, AddSubMenuOpensOnHoverUnlessToldOtherwise)
{
	FToolMenuSection Section;
	EXPECT_FALSE(Section.AddSubMenu("A", FText(), FText(), FNewToolMenuDelegate()).SubMenuData.bOpenSubMenuOnClick);
}

TEST_F(FToolMenuSectionTest, AddSubMenuMakesASubMenuEntry)
{
	FToolMenuSection Section;
	EXPECT_TRUE(Section.AddSubMenu("A", FText(), FText(), FNewToolMenuDelegate()).IsSubMenu());
}

TEST_F(FToolMenuSectionTest, AddSeparatorMakesASeparator)
{
	FToolMenuSection Section;
	EXPECT_EQ(Section.AddSeparator("A").Type, EMultiBlockType::Separator);
}

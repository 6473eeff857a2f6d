// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenu.h"
#include "ToolMenuFixture.h"
#include "ToolMenuTestContext.h"

using UToolMenuTest = FToolMenuFixture;

TEST_F(UToolMenuTest, AddSectionReturnsTheSectionThatIsThereAlready)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddSection("S").AddEntry(MakeEntry(TEXT("E")));
	Menu->AddSection("S");
	EXPECT_TRUE(IsText(Describe(Menu), TEXT("S(E)")));
}

TEST_F(UToolMenuTest, AddSectionWithoutLabelKeepsTheLabelThatIsThere)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddSection("S", FText::FromString(TEXT("First")));
	EXPECT_TRUE(IsText(Menu->AddSection("S").Label.Get().ToString(), TEXT("First")));
}

TEST_F(UToolMenuTest, AddSectionWithLabelReplacesTheLabelThatIsThere)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddSection("S", FText::FromString(TEXT("First")));
	EXPECT_TRUE(IsText(Menu->AddSection("S", FText::FromString(TEXT("Second"))).Label.Get().ToString(), TEXT("Second")));
}

TEST_F(UToolMenuTest, AddSectionWithAnEmptyLabelReplacesTheLabelThatIsThere)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddSection("S", FText::FromString(TEXT("First")));
	EXPECT_TRUE(Menu->AddSection("S", FText::GetEmpty()).Label.Get().IsEmpty());
}

TEST_F(UToolMenuTest, AddSectionWithoutNamedPositionKeepsThePosition)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	const FToolMenuInsert Position("T", EToolMenuInsertType::After);
	Menu->AddSection("S", TAttribute<FText>(), Position);
	EXPECT_TRUE(Menu->AddSection("S").InsertPosition == Position);
}

TEST_F(UToolMenuTest, AddSectionKeepsTheOwnerOfTheSectionThatIsThere)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	{
		FToolMenuOwnerScoped Scope("A");
		Menu->AddSection("S");
	}
	FToolMenuOwnerScoped Scope("B");
	EXPECT_TRUE(Menu->AddSection("S").Owner == FToolMenuOwner("A"));
}

TEST_F(UToolMenuTest, AddSectionStampsTheCurrentOwner)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	FToolMenuOwnerScoped Scope(this);
	EXPECT_TRUE(Menu->AddSection("S").Owner == FToolMenuOwner(this));
}

TEST_F(UToolMenuTest, FindSectionIgnoresCase)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddSection("ColorManagement");
	EXPECT_NE(Menu->FindSection("colormanagement"), nullptr);
}

TEST_F(UToolMenuTest, FindSectionGivesNullForAnUnknownName)
{
	EXPECT_EQ(UToolMenus::Get()->RegisterMenu("M")->FindSection("S"), nullptr);
}

TEST_F(UToolMenuTest, FindOrAddSectionMakesAMissingSection)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->FindOrAddSection("S");
	EXPECT_TRUE(Menu->ContainsSection("S"));
}

TEST_F(UToolMenuTest, RemoveSectionTakesItsEntriesAlong)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddMenuEntry("S", MakeEntry(TEXT("E")));
	Menu->RemoveSection("S");
	EXPECT_FALSE(Menu->ContainsEntry("E"));
}

TEST_F(UToolMenuTest, AddMenuEntryMakesAMissingSection)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddMenuEntry("S", MakeEntry(TEXT("E")));
	EXPECT_TRUE(IsText(Describe(Menu), TEXT("S(E)")));
}

TEST_F(UToolMenuTest, AddSubMenuReturnsTheMenuThatFillsIt)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	UToolMenu* SubMenu = Menu->AddSubMenu(FToolMenuOwner(), "S", "Sub", FText::FromString(TEXT("Sub")));
	EXPECT_TRUE(IsText(SubMenu->GetMenuName().ToString(), TEXT("M.Sub")));
}

TEST_F(UToolMenuTest, AddSubMenuGivesTheEntryTheOwner)
{
	UToolMenu* Menu = UToolMenus::Get()->RegisterMenu("M");
	Menu->AddSubMenu(this, "S", "Sub", FText::FromString(TEXT("Sub")));
	EXPECT_TRUE(Menu->FindEntry("Sub")->Owner == FToolMenuOwner(this));
}

TEST_F(UToolMenuTest, ClosesAfterASelectionUnlessToldOtherwise)
{
	EXPECT_TRUE(UToolMenus::Get()->RegisterMenu("M")->bShouldCloseWindowAfterMenuSelection);
}

TEST_F(UToolMenuTest, FindContextFindsAnObjectOfTheClass)
{
	UToolMenuTestContext* Object = NewObject<UToolMenuTestContext>();
	UToolMenus::Get()->RegisterMenu("M");
	EXPECT_EQ(UToolMenus::Get()->GenerateMenu("M", Object)->FindContext<UToolMenuTestContext>(), Object);
}

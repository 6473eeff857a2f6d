// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Support/MenuUser.h"
#include "ToolMenus.h"

/** Fresh tool menus for each test. */
class FToolMenuFixture : public ::testing::Test
{
protected:
	/** An entry that does nothing. */
	static FToolMenuEntry MakeEntry(const TCHAR* Name)
	{
		return FToolMenuEntry::InitMenuEntry(
			Name, FText::FromString(Name), FText::GetEmpty(), FSlateIcon(), FToolUIActionChoice(FUIAction()));
	}

	/** An entry at a position. */
	static FToolMenuEntry MakeEntryAt(const TCHAR* Name, const TCHAR* Target, const EToolMenuInsertType Type)
	{
		FToolMenuEntry Entry = MakeEntry(Name);
		Entry.InsertPosition = FToolMenuInsert(Target, Type);
		return Entry;
	}

	/** "Section(Entry,Entry)Section()" of an assembled menu. */
	static FString Describe(const UToolMenu* Menu)
	{
		FString Text;
		for (const FToolMenuSection& Section : Menu->Sections)
		{
			Text += Section.Name.ToString() + TEXT("(");
			for (int32 Index = 0; Index < Section.Blocks.Num(); ++Index)
			{
				Text += (Index > 0 ? TEXT(",") : TEXT("")) + Section.Blocks[Index].Name.ToString();
			}
			Text += TEXT(")");
		}
		return Text;
	}

	/** Describes what a menu is assembled to. */
	static FString Generate(const TCHAR* Name, const FToolMenuContext& Context = FToolMenuContext())
	{
		return Describe(UToolMenus::Get()->GenerateMenu(Name, Context));
	}

	FObjectSystemScope ObjectSystem;
};

/** Tool menus with a person who uses them. */
class FToolMenuUserFixture : public FToolMenuFixture
{
protected:
	/** Opens a menu by name. */
	TSharedPtr<IMenu> Open(const TCHAR* Name, const FToolMenuContext& Context = FToolMenuContext())
	{
		return User.Open(UToolMenus::Get()->GenerateWidget(Name, Context));
	}

	FMenuUser User;
};

// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Views/SListView.h"
#include "Slate/SlateFixture.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/Views/STableRow.h"
#include "Widgets/Views/STileView.h"

namespace
{
typedef TSharedPtr<int32> FItem;

/** A list of numbered items whose rows are twenty high; fifteen fit the window. */
class FLists : public FSlateFixture
{
protected:
	void ShowList(int32 NumItems, ESelectionMode::Type Mode = ESelectionMode::Single)
	{
		Fill(NumItems);
		SAssignNew(List, SListView<FItem>)
			.ListItemsSource(&Items)
			.SelectionMode(Mode)
			.OnGenerateRow(this->MakeGenerator())
			.OnRowReleased_Lambda([this](const TSharedRef<ITableRow>&) { ++NumReleased; })
			.OnSelectionChanged_Lambda([this](FItem Item, ESelectInfo::Type) {
				Notes.push_back("selected " + (Item.IsValid() ? std::to_string(*Item) : std::string("none")));
			})
			.OnMouseButtonClick_Lambda([this](FItem Item) { Notes.push_back("clicked " + std::to_string(*Item)); })
			.OnMouseButtonDoubleClick_Lambda([this](FItem Item) { Notes.push_back("double-clicked " + std::to_string(*Item)); });
		Show(List.ToSharedRef());
	}

	void Fill(int32 NumItems)
	{
		Items.Empty();
		for (int32 Index = 0; Index < NumItems; ++Index)
		{
			Items.Add(MakeShareable(new int32(Index)));
		}
	}

	SListView<FItem>::FOnGenerateRow MakeGenerator()
	{
		return SListView<FItem>::FOnGenerateRow::CreateLambda(
			[this](FItem Item, const TSharedRef<STableViewBase>& Owner) -> TSharedRef<ITableRow> {
				++NumGenerated;
				return SNew(STableRow<FItem>, Owner)[SNew(STestBox).Name(std::to_string(*Item)).Size(FVector2D(100, 20))];
			});
	}

	/** Returns the point of an item's row by its place in the window. */
	static FVector2D At(int32 Line) { return FVector2D(50, static_cast<float>(Line) * 20.0f + 10.0f); }

	std::vector<int32> GetSelected() const
	{
		std::vector<int32> Selected;
		for (const FItem& Item : List->GetSelectedItems())
		{
			Selected.push_back(*Item);
		}
		return Selected;
	}

	TArray<FItem> Items;
	TSharedPtr<SListView<FItem>> List;
	int32 NumGenerated = 0;
	int32 NumReleased = 0;
};
}

TEST_F(FLists, MakeRowsOnlyForWhatIsInSight)
{
	ShowList(10000);
	EXPECT_EQ(15, NumGenerated);
	EXPECT_EQ(15, List->GetNumGeneratedChildren());
	EXPECT_EQ(10000, List->GetNumItemsBeingObserved());
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(15, NumGenerated);
}

TEST_F(FLists, MakeRowsAsTheyComeIntoSightAndReleaseTheOthers)
{
	ShowList(10000);
	List->SetScrollOffset(5000.0);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(30, NumGenerated);
	EXPECT_EQ(15, NumReleased);
	EXPECT_EQ("5000", GetPaintedTexts(Window.ToSharedRef())[0]);
}

TEST_F(FLists, KeepRowsThatStayInSight)
{
	ShowList(10000);
	List->SetScrollOffset(5.0);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(20, NumGenerated);
	EXPECT_EQ(5, NumReleased);
}

TEST_F(FLists, ShowPartsOfRowsBetweenWholeOffsets)
{
	ShowList(100);
	List->SetScrollOffset(2.5);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(16, List->GetNumGeneratedChildren());
	EXPECT_EQ(-10.0f, List->WidgetFromItem(Items[2])->AsWidget()->GetCachedGeometry().GetAbsolutePosition().Y);
}

TEST_F(FLists, EndWithTheLastRowAtTheLowerEdge)
{
	ShowList(100);
	List->ScrollToBottom();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(85.0, List->GetScrollOffset());
	EXPECT_EQ(280.0f, List->WidgetFromItem(Items[99])->AsWidget()->GetCachedGeometry().GetAbsolutePosition().Y);
}

TEST_F(FLists, DoNotScrollWhenAllItemsAreInSight)
{
	ShowList(3);
	List->SetScrollOffset(2.0);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(0.0, List->GetScrollOffset());
	StandIn::MoveMouse(At(0));
	EXPECT_FALSE(StandIn::TurnWheel(-1.0f));
}

TEST_F(FLists, ShowNothingWithoutItems)
{
	ShowList(0);
	EXPECT_EQ(0, List->GetNumGeneratedChildren());
	EXPECT_FALSE(StandIn::PressKey(EKeys::Down));
}

TEST_F(FLists, ScrollByTheWheel)
{
	ShowList(100);
	StandIn::MoveMouse(At(0));
	EXPECT_TRUE(StandIn::TurnWheel(-5.0f));
	StandIn::AdvanceTime(0.0f);
	EXPECT_NEAR(8.0, List->GetScrollOffset(), 0.001);
	StandIn::TurnWheel(-10000.0f);
	StandIn::AdvanceTime(0.0f);
	EXPECT_NEAR(85.0, List->GetScrollOffset(), 0.001);
}

TEST_F(FLists, SelectAndClickByTheMouse)
{
	ShowList(100);
	StandIn::ClickAt(At(3));
	EXPECT_EQ((FNotes{"selected 3", "clicked 3"}), TakeNotes());
	EXPECT_EQ((std::vector<int32>{3}), GetSelected());
	EXPECT_TRUE(List->HasKeyboardFocus());
}

TEST_F(FLists, TellNoNewSelectionForTheSelectedItem)
{
	ShowList(100);
	StandIn::ClickAt(At(3));
	TakeNotes();
	StandIn::ClickAt(At(3));
	EXPECT_EQ((FNotes{"clicked 3"}), TakeNotes());
}

TEST_F(FLists, DoNotClickByAReleaseOnAnotherRow)
{
	ShowList(100);
	StandIn::MoveMouse(At(3));
	StandIn::PressMouse();
	StandIn::MoveMouse(At(5));
	StandIn::ReleaseMouse();
	EXPECT_EQ((FNotes{"selected 3"}), TakeNotes());
}

TEST_F(FLists, TellDoubleClicks)
{
	ShowList(100);
	StandIn::DoubleClickAt(At(2));
	EXPECT_EQ((FNotes{"selected 2", "clicked 2", "double-clicked 2"}), TakeNotes());
}

TEST_F(FLists, SelectByArrowsWithoutClicking)
{
	ShowList(100);
	App().SetKeyboardFocus(List);
	StandIn::PressKey(EKeys::Down);
	StandIn::PressKey(EKeys::Down);
	StandIn::PressKey(EKeys::Up);
	EXPECT_EQ((FNotes{"selected 0", "selected 1", "selected 0"}), TakeNotes());
}

TEST_F(FLists, ScrollToTheItemSelectedByKeys)
{
	ShowList(100);
	App().SetKeyboardFocus(List);
	StandIn::PressKey(EKeys::End);
	StandIn::AdvanceTime(0.0f);
	EXPECT_TRUE(List->IsItemVisible(Items[99]));
	StandIn::PressKey(EKeys::PageUp);
	EXPECT_EQ((std::vector<int32>{84}), GetSelected());
	StandIn::PressKey(EKeys::Home);
	StandIn::AdvanceTime(0.0f);
	EXPECT_TRUE(List->IsItemVisible(Items[0]));
}

TEST_F(FLists, SelectSeveralWithControlAndShift)
{
	ShowList(100, ESelectionMode::Multi);
	StandIn::ClickAt(At(2));
	const FModifierKeysState Shift(true, false, false, false, false, false, false, false, false);
	const FModifierKeysState Control(false, false, true, false, false, false, false, false, false);
	const auto Click = [](int32 Line, const FModifierKeysState& Modifiers) {
		StandIn::MoveMouse(At(Line));
		App().ProcessMouseButtonDownEvent(
			nullptr, FPointerEvent(0, At(Line), At(Line), TSet<FKey>(), EKeys::LeftMouseButton, 0.0f, Modifiers));
		StandIn::ReleaseMouse();
	};
	Click(5, Shift);
	EXPECT_EQ((std::vector<int32>{2, 3, 4, 5}), GetSelected());
	Click(3, Control);
	EXPECT_EQ((std::vector<int32>{2, 4, 5}), GetSelected());
	Click(9, FModifierKeysState());
	EXPECT_EQ((std::vector<int32>{9}), GetSelected());
}

TEST_F(FLists, SelectNothingWhereNothingCanBeSelected)
{
	ShowList(100, ESelectionMode::None);
	StandIn::ClickAt(At(3));
	EXPECT_EQ((FNotes{"clicked 3"}), TakeNotes());
	EXPECT_EQ(0, List->GetNumItemsSelected());
}

TEST_F(FLists, DropTheSelectionOfItemsThatAreGone)
{
	ShowList(100);
	StandIn::ClickAt(At(3));
	TakeNotes();
	Items.RemoveAt(3);
	List->RequestListRefresh();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(0, List->GetNumItemsSelected());
	EXPECT_EQ((FNotes{"selected none"}), TakeNotes());
	EXPECT_EQ("4", GetPaintedTexts(Window.ToSharedRef())[3]);
}

TEST_F(FLists, MakeAllRowsAnewWhenRebuilt)
{
	ShowList(5);
	List->RebuildList();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(10, NumGenerated);
	EXPECT_EQ(5, NumReleased);
}

TEST_F(FLists, ShowTheSelectedRowInTheSelectionColour)
{
	ShowList(5);
	StandIn::ClickAt(At(1));
	StandIn::MoveMouse(FVector2D(300, 250));
	StandIn::AdvanceTime(0.0f);
	bool bFound = false;
	for (const FSlateDrawElement& Element : Window->GetElementList().GetElements())
	{
		bFound =
			bFound || (Element.GetRect() == FSlateRect(0, 20, 400, 40) && Element.GetTint() == FLinearColor(0.728f, 0.364f, 0.003f, 1.0f));
	}
	EXPECT_TRUE(bFound);
}

TEST_F(FLists, OpenAContextMenuByTheRightButton)
{
	Fill(5);
	SAssignNew(List, SListView<FItem>).ListItemsSource(&Items).OnGenerateRow(MakeGenerator()).OnContextMenuOpening_Lambda([]() {
		return TSharedPtr<SWidget>(MakeBox(50, 50));
	});
	Show(List.ToSharedRef());
	StandIn::ClickAt(At(2), EKeys::RightMouseButton);
	EXPECT_TRUE(App().AnyMenusVisible());
	EXPECT_EQ((std::vector<int32>{2}), GetSelected());
}

TEST_F(FLists, LayTilesInLinesAndMakeOnlyThoseInSight)
{
	Fill(10000);
	int32 NumTiles = 0;
	const TSharedRef<STileView<FItem>> Tiles =
		SNew(STileView<FItem>)
			.ListItemsSource(&Items)
			.ItemWidth(95.0f)
			.ItemHeight(100.0f)
			.OnGenerateTile_Lambda([&NumTiles](FItem Item, const TSharedRef<STableViewBase>& Owner) -> TSharedRef<ITableRow> {
				++NumTiles;
				return SNew(STableRow<FItem>, Owner)[SNew(STestBox).Name(std::to_string(*Item))];
			});
	Show(Tiles);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(12, NumTiles);
	EXPECT_EQ(FSlateRect(95, 100, 190, 200), Tiles->WidgetFromItem(Items[5])->AsWidget()->GetCachedGeometry().GetLayoutBoundingRect());
	Tiles->RequestScrollIntoView(Items[9999]);
	StandIn::AdvanceTime(0.0f);
	EXPECT_TRUE(Tiles->IsItemVisible(Items[9999]));
	EXPECT_LE(NumTiles, 30);
}

TEST_F(FLists, MoveThroughTilesInBothDirectionsByArrows)
{
	Fill(20);
	const TSharedRef<STileView<FItem>> Tiles =
		SNew(STileView<FItem>)
			.ListItemsSource(&Items)
			.SelectionMode(ESelectionMode::Single)
			.ItemWidth(100.0f)
			.ItemHeight(50.0f)
			.OnGenerateTile_Lambda([](FItem, const TSharedRef<STableViewBase>& Owner) -> TSharedRef<ITableRow> {
				return SNew(STableRow<FItem>, Owner)[SNew(STestBox)];
			});
	Show(Tiles);
	App().SetKeyboardFocus(Tiles);
	StandIn::PressKey(EKeys::Right);
	StandIn::PressKey(EKeys::Right);
	StandIn::PressKey(EKeys::Down);
	ASSERT_EQ(1, Tiles->GetNumItemsSelected());
	EXPECT_EQ(5, *Tiles->GetSelectedItems()[0]);
}

TEST_F(FLists, SelectManyItemsAtOnceAndTellOfItOnce)
{
	ShowList(5, ESelectionMode::Multi);
	List->SetItemSelection(Items, true);
	EXPECT_EQ(std::vector<int32>({0, 1, 2, 3, 4}), GetSelected());
	EXPECT_EQ(1u, Notes.size());
}

TEST_F(FLists, TakeTheSelectionOfManyItemsAwayAtOnce)
{
	ShowList(3, ESelectionMode::Multi);
	List->SetItemSelection(Items, true);
	List->SetItemSelection({Items[0], Items[2]}, false);
	EXPECT_EQ(std::vector<int32>({1}), GetSelected());
}

TEST_F(FLists, KeepTheOrderOfTheSelectionWhenItemsGo)
{
	ShowList(4, ESelectionMode::Multi);
	List->SetItemSelection({Items[3], Items[1], Items[0]}, true);
	Items.RemoveAt(1);
	List->RequestListRefresh();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(std::vector<int32>({3, 0}), GetSelected());
}

// Copyright The Tintmill authors. All rights reserved.

#include "AssetPicker/SAssetPickerList.h"
#include "AssetPicker/AssetPickerListPrivate.h"
#include "AssetToolsModule.h"

#include <algorithm>

TSharedPtr<IAssetTypeActions> AssetPickerListPrivate::FindActions(const FAssetData& Asset)
{
	const UClass* Class = Asset.GetClass();
	return Class ? FAssetToolsModule::GetModule().Get().GetAssetTypeActionsForClass(Class).Pin() : TSharedPtr<IAssetTypeActions>();
}

namespace AssetPickerListPrivate
{
/** Sorts by merging the runs that are in order already: assets come folder by folder, each in order. */
template <typename LessType>
void SortRuns(TArray<int32>& Places, LessType Less)
{
	int32* const Data = Places.GetData();
	TArray<int32> Ends;
	for (int32 Index = 1; Index <= Places.Num(); ++Index)
	{
		if (Index == Places.Num() || Less(Data[Index], Data[Index - 1]))
		{
			Ends.Add(Index);
		}
	}
	while (Ends.Num() > 1)
	{
		TArray<int32> Merged;
		int32 Start = 0;
		for (int32 Run = 0; Run < Ends.Num(); Run += 2)
		{
			const int32 End = Ends[FMath::Min(Run + 1, Ends.Num() - 1)];
			if (Run + 1 < Ends.Num())
			{
				std::inplace_merge(Data + Start, Data + Ends[Run], Data + End, Less);
			}
			Merged.Add(End);
			Start = End;
		}
		Ends = MoveTemp(Merged);
	}
}
}

SAssetPickerList::SAssetPickerList()
	: SelectedIndex(INDEX_NONE)
	, HoveredIndex(INDEX_NONE)
	, PressedIndex(INDEX_NONE)
	, PendingScrollIndex(INDEX_NONE)
	, Offset(0.0f)
	, bDraggingScrollBar(false)
{}

void SAssetPickerList::Construct(const FArguments& InArgs)
{
	OnChosen = InArgs._OnChosen;
	SetToolTipText(TAttribute<FText>(this, &SAssetPickerList::GetHoveredText));
}

void SAssetPickerList::SetItems(TArray<FItem> InItems)
{
	// Places are sorted, not items: thousands of these take a frame to move about.
	TArray<FString> Keys;
	TArray<int32> Order;
	Keys.Reserve(InItems.Num());
	Order.Reserve(InItems.Num());
	for (const FItem& Item : InItems)
	{
		Order.Add(Keys.Add(Item.Label.ToLower()));
	}
	AssetPickerListPrivate::SortRuns(Order, [&InItems, &Keys](const int32 A, const int32 B) {
		const int32 Result = Keys[A].Compare(Keys[B], ESearchCase::CaseSensitive);
		return Result != 0 ? Result < 0 : InItems[A].Asset.ObjectPath.ToString() < InItems[B].Asset.ObjectPath.ToString();
	});
	Items.Reset(Order.Num());
	SearchKeys.Reset(Order.Num());
	for (const int32 Place : Order)
	{
		Items.Add(MoveTemp(InItems[Place]));
		SearchKeys.Add(MoveTemp(Keys[Place]));
	}
	Refilter();
}

void SAssetPickerList::SetSearchText(const FString& InText)
{
	SearchText = InText;
	Refilter();
}

void SAssetPickerList::Refilter()
{
	const int32 SelectedItem = SelectedIndex == INDEX_NONE ? INDEX_NONE : Shown[SelectedIndex];
	TArray<FString> Words;
	SearchText.ToLower().ParseIntoArray(Words, TEXT(" "), true);
	Shown.Reset();
	SelectedIndex = INDEX_NONE;
	HoveredIndex = INDEX_NONE;
	PressedIndex = INDEX_NONE;
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		bool bMatches = true;
		for (const FString& Word : Words)
		{
			bMatches = bMatches && SearchKeys[Index].Contains(Word, ESearchCase::CaseSensitive);
		}
		if (bMatches)
		{
			SelectedIndex = Index == SelectedItem ? Shown.Num() : SelectedIndex;
			Shown.Add(Index);
		}
	}
	SetOffset(Offset);
	if (SelectedIndex != INDEX_NONE)
	{
		ScrollTo(SelectedIndex);
	}
}

void SAssetPickerList::SelectAsset(const FAssetData& Asset)
{
	SelectedIndex = INDEX_NONE;
	for (int32 Index = 0; Index < Shown.Num() && Asset.IsValid(); ++Index)
	{
		if (GetShownItem(Index).Asset == Asset)
		{
			SelectedIndex = Index;
			ScrollTo(Index);
			break;
		}
	}
}

void SAssetPickerList::MoveSelection(const int32 Step)
{
	if (Shown.Num() == 0)
	{
		return;
	}
	const int32 From = SelectedIndex != INDEX_NONE ? SelectedIndex : (Step > 0 ? -1 : Shown.Num());
	SelectedIndex = FMath::Clamp(From + Step, 0, Shown.Num() - 1);
	ScrollTo(SelectedIndex);
}

FAssetData SAssetPickerList::GetSelectedAsset() const
{
	return SelectedIndex == INDEX_NONE ? FAssetData() : GetShownItem(SelectedIndex).Asset;
}

FString SAssetPickerList::GetTypeLabel(const FAssetData& Asset)
{
	const TSharedPtr<IAssetTypeActions> Actions = AssetPickerListPrivate::FindActions(Asset);
	if (!Actions.IsValid())
	{
		return Asset.AssetClass.ToString();
	}
	const FText OwnName = Actions->GetDisplayNameFromAssetData(Asset);
	return (OwnName.IsEmpty() ? Actions->GetName() : OwnName).ToString();
}

FText SAssetPickerList::GetHoveredText() const
{
	if (HoveredIndex == INDEX_NONE)
	{
		return FText::GetEmpty();
	}
	const FAssetData& Asset = GetShownItem(HoveredIndex).Asset;
	return FText::FromString(Asset.AssetName.ToString() + TEXT(" (") + GetTypeLabel(Asset) + TEXT(")\n") + Asset.PackagePath.ToString());
}

float SAssetPickerList::GetViewHeight() const
{
	return GetCachedGeometry().GetLocalSize().Y;
}

float SAssetPickerList::GetContentHeight() const
{
	return AssetPickerListPrivate::RowHeight * static_cast<float>(Shown.Num());
}

float SAssetPickerList::GetMaxOffset() const
{
	return FMath::Max(0.0f, GetContentHeight() - GetViewHeight());
}

void SAssetPickerList::SetOffset(const float InOffset)
{
	Offset = FMath::Clamp(InOffset, 0.0f, GetMaxOffset());
	Invalidate(EInvalidateWidgetReason::Paint);
}

int32 SAssetPickerList::GetNumRowsPerPage() const
{
	return FMath::Max(1, static_cast<int32>(GetViewHeight() / AssetPickerListPrivate::RowHeight));
}

void SAssetPickerList::ScrollTo(const int32 Index)
{
	if (GetViewHeight() <= 0.0f)
	{
		// Not arranged yet: done when the list is painted first.
		PendingScrollIndex = Index;
		return;
	}
	const float Top = AssetPickerListPrivate::RowHeight * static_cast<float>(Index);
	const float Bottom = Top + AssetPickerListPrivate::RowHeight;
	SetOffset(Top < Offset ? Top : FMath::Max(Offset, Bottom - GetViewHeight()));
}

FVector2D SAssetPickerList::GetRowCentre(const int32 Index) const
{
	const FGeometry& Geometry = GetCachedGeometry();
	const float Y = AssetPickerListPrivate::RowHeight * (static_cast<float>(Index) + 0.5f) - Offset;
	return Geometry.LocalToAbsolute(FVector2D(Geometry.GetLocalSize().X * 0.5f, Y));
}

bool SAssetPickerList::IsRowVisible(const int32 Index) const
{
	const float Y = AssetPickerListPrivate::RowHeight * (static_cast<float>(Index) + 0.5f) - Offset;
	return Y >= 0.0f && Y < GetViewHeight();
}

int32 SAssetPickerList::GetRowAt(const FGeometry& MyGeometry, const FVector2D& ScreenPosition) const
{
	const FVector2D Local = MyGeometry.AbsoluteToLocal(ScreenPosition);
	const FVector2D Size = MyGeometry.GetLocalSize();
	if (Local.X < 0.0f || Local.Y < 0.0f || Local.X >= Size.X || Local.Y >= Size.Y)
	{
		return INDEX_NONE;
	}
	const int32 Index = static_cast<int32>((Local.Y + Offset) / AssetPickerListPrivate::RowHeight);
	return Index < Shown.Num() ? Index : INDEX_NONE;
}

FVector2D SAssetPickerList::ComputeDesiredSize(float) const
{
	return FVector2D(200.0f, AssetPickerListPrivate::RowHeight);
}

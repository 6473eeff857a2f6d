// Copyright The Tintmill authors. All rights reserved.

#include "AssetPicker/SAssetPickerList.h"
#include "AssetToolsModule.h"
#include "ClassIconFinder.h"
#include "InputCoreTypes.h"
#include "Rendering/DrawElements.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateBrush.h"
#include "Brushes/SlateColorBrush.h"

namespace AssetPickerListPrivate
{
const float RowHeight = 40.0f;
const float ThumbnailSize = 32.0f;
const float StripHeight = 3.0f;
const float ScrollBarWidth = 8.0f;

const FLinearColor TextColor(0.72f, 0.72f, 0.72f);
const FLinearColor DimTextColor(0.3f, 0.3f, 0.3f);
const FLinearColor SelectionColor(0.728f, 0.364f, 0.003f);
const FLinearColor HoverColor(0.09f, 0.09f, 0.09f);
const FLinearColor PlateColor(0.012f, 0.012f, 0.012f);
const FLinearColor ScrollBarColor(0.2f, 0.2f, 0.2f);

const FSlateBrush* White()
{
	static const FSlateColorBrush Brush(FLinearColor::White);
	return &Brush;
}

TSharedPtr<IAssetTypeActions> FindActions(const FAssetData& Asset)
{
	const UClass* Class = Asset.GetClass();
	return Class ? FAssetToolsModule::GetModule().Get().GetAssetTypeActionsForClass(Class).Pin() : TSharedPtr<IAssetTypeActions>();
}
}

SAssetPickerList::SAssetPickerList()
	: SelectedIndex(INDEX_NONE)
	, HoveredIndex(INDEX_NONE)
	, PressedIndex(INDEX_NONE)
	, PendingScrollIndex(INDEX_NONE)
	, Offset(0.0f)
	, bDraggingScrollBar(false)
{
}

void SAssetPickerList::Construct(const FArguments& InArgs)
{
	OnChosen = InArgs._OnChosen;
	SetToolTipText(TAttribute<FText>(this, &SAssetPickerList::GetHoveredText));
}

void SAssetPickerList::SetItems(TArray<FItem> InItems)
{
	Items = MoveTemp(InItems);
	Items.Sort([](const FItem& A, const FItem& B) {
		const int32 Order = A.Label.Compare(B.Label, ESearchCase::IgnoreCase);
		return Order != 0 ? Order < 0 : A.Asset.ObjectPath.ToString() < B.Asset.ObjectPath.ToString();
	});
	SearchKeys.Reset();
	for (const FItem& Item : Items)
	{
		SearchKeys.Add(Item.Label.ToLower());
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

int32 SAssetPickerList::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle&, bool) const
{
	if (PendingScrollIndex != INDEX_NONE)
	{
		SAssetPickerList* This = const_cast<SAssetPickerList*>(this);
		const int32 Index = PendingScrollIndex;
		This->PendingScrollIndex = INDEX_NONE;
		if (Index < Shown.Num() && GetViewHeight() > 0.0f)
		{
			This->ScrollTo(Index);
		}
	}
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const float RowWidth = Size.X - (NeedsScrollBar() ? AssetPickerListPrivate::ScrollBarWidth : 0.0f);
	OutDrawElements.PushClip(FSlateClippingZone(AllottedGeometry));
	int32 TopLayer = LayerId;
	const int32 First = static_cast<int32>(Offset / AssetPickerListPrivate::RowHeight);
	for (int32 Index = First; Index < Shown.Num(); ++Index)
	{
		const float Y = AssetPickerListPrivate::RowHeight * static_cast<float>(Index) - Offset;
		if (Y >= Size.Y)
		{
			break;
		}
		TopLayer = FMath::Max(TopLayer,
			PaintRow(Index, FVector2D(0.0f, Y), FVector2D(RowWidth, AssetPickerListPrivate::RowHeight), AllottedGeometry, OutDrawElements,
				LayerId));
	}
	if (NeedsScrollBar())
	{
		const float ThumbHeight = FMath::Max(16.0f, Size.Y * Size.Y / GetContentHeight());
		const float ThumbY = (Size.Y - ThumbHeight) * Offset / GetMaxOffset();
		FSlateDrawElement::MakeBox(OutDrawElements, ++TopLayer,
			AllottedGeometry.ToPaintGeometry(
				FVector2D(RowWidth + 1.0f, ThumbY), FVector2D(AssetPickerListPrivate::ScrollBarWidth - 2.0f, ThumbHeight)),
			AssetPickerListPrivate::White(), ESlateDrawEffect::None, AssetPickerListPrivate::ScrollBarColor);
	}
	OutDrawElements.PopClip();
	return TopLayer;
}

int32 SAssetPickerList::PaintRow(const int32 Index, const FVector2D& Position, const FVector2D& Size, const FGeometry& AllottedGeometry,
	FSlateWindowElementList& OutDrawElements, int32 LayerId) const
{
	using namespace AssetPickerListPrivate;
	const FItem& Item = GetShownItem(Index);
	const TSharedPtr<IAssetTypeActions> Actions = FindActions(Item.Asset);
	const bool bSelected = Index == SelectedIndex;
	if (bSelected || Index == HoveredIndex)
	{
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(Position, Size), White(), ESlateDrawEffect::None,
			bSelected ? SelectionColor : HoverColor);
	}
	const FVector2D Thumbnail = Position + FVector2D(4.0f, 4.0f);
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1,
		AllottedGeometry.ToPaintGeometry(Thumbnail, FVector2D(ThumbnailSize, ThumbnailSize)), White(), ESlateDrawEffect::None, PlateColor);
	const FSlateBrush* Brush = FClassIconFinder::FindThumbnailForClass(Item.Asset.GetClass());
	if (Brush)
	{
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 2,
			AllottedGeometry.ToPaintGeometry(Thumbnail + FVector2D(2.0f, 1.0f), FVector2D(ThumbnailSize - 4.0f, ThumbnailSize - 4.0f)), Brush,
			ESlateDrawEffect::None, FLinearColor::White);
	}
	if (Actions.IsValid())
	{
		FColor Color = Actions->GetTypeColor();
		Color.A = 255;
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 3,
			AllottedGeometry.ToPaintGeometry(
				Thumbnail + FVector2D(0.0f, ThumbnailSize - StripHeight), FVector2D(ThumbnailSize, StripHeight)),
			White(), ESlateDrawEffect::None, FLinearColor(Color));
	}
	const FVector2D TextPosition = Position + FVector2D(ThumbnailSize + 12.0f, 4.0f);
	const FVector2D TextSize(FMath::Max(0.0f, Size.X - ThumbnailSize - 14.0f), 16.0f);
	const FLinearColor NameColor = bSelected ? FLinearColor::Black : TextColor;
	const FLinearColor TypeColor = bSelected ? FLinearColor(0.05f, 0.03f, 0.0f) : DimTextColor;
	FSlateDrawElement::MakeText(OutDrawElements, LayerId + 3, AllottedGeometry.ToPaintGeometry(TextPosition, TextSize), Item.Label,
		FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 9), ESlateDrawEffect::None, NameColor);
	FSlateDrawElement::MakeText(OutDrawElements, LayerId + 3,
		AllottedGeometry.ToPaintGeometry(TextPosition + FVector2D(0.0f, 16.0f), TextSize), GetTypeLabel(Item.Asset),
		FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 8), ESlateDrawEffect::None, TypeColor);
	return LayerId + 3;
}

FReply SAssetPickerList::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Handled();
	}
	const FVector2D Local = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	if (NeedsScrollBar() && Local.X >= MyGeometry.GetLocalSize().X - AssetPickerListPrivate::ScrollBarWidth)
	{
		bDraggingScrollBar = true;
		DragScrollBar(MyGeometry, MouseEvent.GetScreenSpacePosition());
		return FReply::Handled().CaptureMouse(AsShared());
	}
	PressedIndex = GetRowAt(MyGeometry, MouseEvent.GetScreenSpacePosition());
	return FReply::Handled();
}

FReply SAssetPickerList::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (bDraggingScrollBar)
	{
		bDraggingScrollBar = false;
		return FReply::Handled().ReleaseMouseCapture();
	}
	const int32 Pressed = PressedIndex;
	PressedIndex = INDEX_NONE;
	if (Pressed != INDEX_NONE && Pressed == GetRowAt(MyGeometry, MouseEvent.GetScreenSpacePosition()))
	{
		SelectedIndex = Pressed;
		// The handler may close the menu that keeps the list.
		const TSharedRef<SWidget> KeptAlive = AsShared();
		const FAssetData Chosen = GetShownItem(Pressed).Asset;
		OnChosen.ExecuteIfBound(Chosen);
	}
	return FReply::Handled();
}

FReply SAssetPickerList::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (bDraggingScrollBar)
	{
		DragScrollBar(MyGeometry, MouseEvent.GetScreenSpacePosition());
		return FReply::Handled();
	}
	HoveredIndex = GetRowAt(MyGeometry, MouseEvent.GetScreenSpacePosition());
	Invalidate(EInvalidateWidgetReason::Paint);
	return FReply::Unhandled();
}

void SAssetPickerList::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SLeafWidget::OnMouseLeave(MouseEvent);
	HoveredIndex = INDEX_NONE;
	PressedIndex = INDEX_NONE;
	Invalidate(EInvalidateWidgetReason::Paint);
}

FReply SAssetPickerList::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SetOffset(Offset - MouseEvent.GetWheelDelta() * AssetPickerListPrivate::RowHeight);
	HoveredIndex = GetRowAt(MyGeometry, MouseEvent.GetScreenSpacePosition());
	return FReply::Handled();
}

void SAssetPickerList::DragScrollBar(const FGeometry& MyGeometry, const FVector2D& ScreenPosition)
{
	const float Height = FMath::Max(1.0f, MyGeometry.GetLocalSize().Y);
	const float Fraction = MyGeometry.AbsoluteToLocal(ScreenPosition).Y / Height;
	SetOffset(Fraction * GetContentHeight() - Height * 0.5f);
}

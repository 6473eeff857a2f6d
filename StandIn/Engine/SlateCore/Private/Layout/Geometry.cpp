// Copyright The Tintmill authors. All rights reserved.

#include "Layout/Geometry.h"
#include "Layout/ArrangedWidget.h"
#include "Widgets/SWidget.h"

FGeometry::FGeometry()
	: Size(0.0f, 0.0f)
	, Scale(1.0f)
	, AbsolutePosition(0.0f, 0.0f)
	, Position(0.0f, 0.0f)
{}

FGeometry::FGeometry(const FGeometry& RHS)
	: Size(RHS.Size)
	, Scale(RHS.Scale)
	, AbsolutePosition(RHS.AbsolutePosition)
	, Position(RHS.Position)
{}

FGeometry& FGeometry::operator=(const FGeometry& RHS)
{
	// The members are const for everyone else, as in the engine.
	if (this != &RHS)
	{
		this->~FGeometry();
		new (this) FGeometry(RHS);
	}
	return *this;
}

FGeometry::FGeometry(
	const FVector2D& OffsetFromParent, const FVector2D& ParentAbsolutePosition, const FVector2D& InLocalSize, float InScale)
	: Size(InLocalSize)
	, Scale(InScale)
	, AbsolutePosition(ParentAbsolutePosition + OffsetFromParent * InScale)
	, Position(OffsetFromParent)
{}

FGeometry::FGeometry(const FVector2D& InLocalSize, const FVector2D& InPosition, const FSlateLayoutTransform& Accumulated)
	: Size(InLocalSize)
	, Scale(Accumulated.GetScale())
	, AbsolutePosition(Accumulated.GetTranslation())
	, Position(InPosition)
{}

bool FGeometry::operator==(const FGeometry& Other) const
{
	return Size == Other.Size && Scale == Other.Scale && AbsolutePosition == Other.AbsolutePosition && Position == Other.Position;
}

FGeometry FGeometry::MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform)
{
	return FGeometry(InLocalSize, LayoutTransform.GetTranslation(), LayoutTransform);
}

FGeometry FGeometry::MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const
{
	return FGeometry(InLocalSize, LayoutTransform.GetTranslation(), Concatenate(LayoutTransform, GetAccumulatedLayoutTransform()));
}

FGeometry FGeometry::MakeChild(const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale) const
{
	return MakeChild(InLocalSize, FSlateLayoutTransform(ChildScale, ChildOffset));
}

FArrangedWidget FGeometry::MakeChild(
	const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale) const
{
	return FArrangedWidget(ChildWidget, MakeChild(InLocalSize, FSlateLayoutTransform(ChildScale, ChildOffset)));
}

FArrangedWidget FGeometry::MakeChild(
	const TSharedRef<SWidget>& ChildWidget, const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const
{
	return FArrangedWidget(ChildWidget, MakeChild(InLocalSize, LayoutTransform));
}

FPaintGeometry FGeometry::ToPaintGeometry() const
{
	return FPaintGeometry(GetAccumulatedLayoutTransform(), Size);
}

FPaintGeometry FGeometry::ToPaintGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLayoutTransform) const
{
	return FPaintGeometry(Concatenate(InLayoutTransform, GetAccumulatedLayoutTransform()), InLocalSize);
}

FPaintGeometry FGeometry::ToPaintGeometry(const FVector2D& InLocalOffset, const FVector2D& InLocalSize, float InLocalScale) const
{
	return ToPaintGeometry(InLocalSize, FSlateLayoutTransform(InLocalScale, InLocalOffset));
}

FPaintGeometry FGeometry::ToOffsetPaintGeometry(const FVector2D& InLocalOffset) const
{
	return ToPaintGeometry(Size, FSlateLayoutTransform(InLocalOffset));
}

bool FGeometry::IsUnderLocation(const FVector2D& AbsoluteCoordinate) const
{
	const FVector2D Local = AbsoluteToLocal(AbsoluteCoordinate);
	return Local.X >= 0.0f && Local.Y >= 0.0f && Local.X < Size.X && Local.Y < Size.Y;
}

FVector2D FGeometry::AbsoluteToLocal(FVector2D AbsoluteCoordinate) const
{
	return (AbsoluteCoordinate - AbsolutePosition) / Scale;
}

FVector2D FGeometry::LocalToAbsolute(FVector2D LocalCoordinate) const
{
	return LocalCoordinate * Scale + AbsolutePosition;
}

FSlateRect FGeometry::GetLayoutBoundingRect() const
{
	return FSlateRect::FromPointAndExtent(AbsolutePosition, GetAbsoluteSize());
}

FSlateRect FGeometry::GetLayoutBoundingRect(const FSlateRect& LocalRect) const
{
	return FSlateRect(LocalToAbsolute(LocalRect.GetTopLeft()), LocalToAbsolute(LocalRect.GetBottomRight()));
}

FVector2D FGeometry::GetAbsolutePositionAtCoordinates(const FVector2D& NormalCoordinates) const
{
	return LocalToAbsolute(NormalCoordinates * Size);
}

FString FGeometry::ToString() const
{
	return FString::Printf(TEXT("[Abs=%g,%g, Scale=%g, Size=%g,%g]"), static_cast<double>(AbsolutePosition.X),
		static_cast<double>(AbsolutePosition.Y), static_cast<double>(Scale), static_cast<double>(Size.X), static_cast<double>(Size.Y));
}

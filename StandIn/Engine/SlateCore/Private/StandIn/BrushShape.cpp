// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/BrushShape.h"

namespace StandIn
{
namespace
{
const TCHAR ShapePrefix[] = TEXT("Shape:");
}

FShapeBrush::FShapeBrush(EBrushShape Shape, const FVector2D& InImageSize, const FSlateColor& InTint, float CornerRadius)
	: FSlateBrush(ESlateBrushDrawType::Image,
		FName(*FString::Printf(TEXT("%s%d:%d"), ShapePrefix, static_cast<int32>(Shape), static_cast<int32>(CornerRadius))), FMargin(0.0f),
		ESlateBrushTileType::NoTile, ESlateBrushImageType::FullColor, InImageSize, InTint)
{}

EBrushShape GetBrushShape(const FSlateBrush& Brush, float* OutCornerRadius)
{
	const FString Name = Brush.GetResourceName().ToString();
	const int32 PrefixLength = static_cast<int32>(sizeof(ShapePrefix) / sizeof(TCHAR)) - 1;
	EBrushShape Shape = EBrushShape::None;
	int32 Values[2] = {0, 0};
	if (Name.Len() > PrefixLength && Name.Left(PrefixLength) == ShapePrefix)
	{
		int32 Which = 0;
		for (int32 Index = PrefixLength; Index < Name.Len() && Which < 2; ++Index)
		{
			if (Name[Index] == TEXT(':'))
			{
				++Which;
			}
			else
			{
				Values[Which] = Values[Which] * 10 + (Name[Index] - TEXT('0'));
			}
		}
		Shape = static_cast<EBrushShape>(Values[0]);
	}
	if (OutCornerRadius != nullptr)
	{
		*OutCornerRadius = static_cast<float>(Values[1]);
	}
	return Shape;
}
}

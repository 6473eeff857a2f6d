// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/ScenePainter.h"

#include "Host/Scene/SceneChart.h"
#include "Host/Scene/SceneFrame.h"
#include "Host/Scene/ScenePicture.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace TintmillHost
{
namespace
{
/** Where a pixel of a large row lies between two of a small one: the first one's place, and the second one's share in 256ths. */
struct FBetween
{
	int First = 0;
	int Second = 0;
	int Share = 0;
};

FBetween FindBetween(int Place, int Length, int SmallLength)
{
	const float Small = (static_cast<float>(Place) + 0.5f) * static_cast<float>(SmallLength) / static_cast<float>(Length) - 0.5f;
	const float First = std::floor(std::max(Small, 0.0f));
	FBetween Result;
	Result.First = std::min(static_cast<int>(First), SmallLength - 1);
	Result.Second = std::min(Result.First + 1, SmallLength - 1);
	Result.Share = static_cast<int>(std::max(Small - First, 0.0f) * 256.0f);
	return Result;
}

std::uint8_t Mix(std::uint8_t A, std::uint8_t B, int Share)
{
	return static_cast<std::uint8_t>((A * (256 - Share) + B * Share) >> 8);
}

FColor Mix(const FColor& A, const FColor& B, int Share)
{
	return FColor(Mix(A.R, B.R, Share), Mix(A.G, B.G, Share), Mix(A.B, B.B, Share), 255);
}

void Enlarge(const FColor* Small, const FIntPoint& SmallSize, FColor* OutPixels, const FIntPoint& Size)
{
	std::vector<FBetween> Columns(static_cast<size_t>(Size.X));
	for (int X = 0; X < Size.X; ++X)
	{
		Columns[static_cast<size_t>(X)] = FindBetween(X, Size.X, SmallSize.X);
	}
	for (int Y = 0; Y < Size.Y; ++Y)
	{
		const FBetween Row = FindBetween(Y, Size.Y, SmallSize.Y);
		const FColor* const Upper = Small + static_cast<ptrdiff_t>(Row.First) * SmallSize.X;
		const FColor* const Lower = Small + static_cast<ptrdiff_t>(Row.Second) * SmallSize.X;
		for (int X = 0; X < Size.X; ++X)
		{
			const FBetween& Column = Columns[static_cast<size_t>(X)];
			*OutPixels++ = Mix(Mix(Upper[Column.First], Upper[Column.Second], Column.Share),
				Mix(Lower[Column.First], Lower[Column.Second], Column.Share), Row.Share);
		}
	}
}
}

void PaintScene(const FSceneCamera& Camera, const FIntPoint& Size, FColor* OutPixels, int ThreadCount)
{
	if (Size.X <= 0 || Size.Y <= 0)
	{
		return;
	}
	const FScenePicture Picture = {Size.X, Size.Y, OutPixels};
	if (Camera.View == ESceneView::Chart)
	{
		PaintSceneChart(Picture);
		return;
	}
	FSceneFrame Frame(Camera, Picture);
	Frame.Paint(ThreadCount);
}

void PaintSceneCoarsely(const FSceneCamera& Camera, const FIntPoint& Size, FColor* OutPixels, int Coarseness, int ThreadCount)
{
	if (Coarseness <= 1 || Camera.View == ESceneView::Chart || Size.X < Coarseness || Size.Y < Coarseness)
	{
		PaintScene(Camera, Size, OutPixels, ThreadCount);
		return;
	}
	const FIntPoint SmallSize(Size.X / Coarseness, Size.Y / Coarseness);
	std::vector<FColor> Small(static_cast<size_t>(SmallSize.X) * static_cast<size_t>(SmallSize.Y));
	PaintScene(Camera, SmallSize, Small.data(), ThreadCount);
	Enlarge(Small.data(), SmallSize, OutPixels, Size);
}
}

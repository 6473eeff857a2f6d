// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/MovingScenes.h"

#include "Host/Scene/ScenePainter.h"

#include "Containers/Ticker.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditorViewport.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace TintmillHost
{
namespace
{
/** A picture that takes longer follows the mouse too slowly, in seconds. */
constexpr double LongestPaint = 0.022;

constexpr int Coarsest = 4;

/** A camera rests that has not moved for so long, in seconds. */
constexpr float RestSeconds = 0.2f;

int CountThreads()
{
	return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 2, 16);
}
}

FMovingScenes::FMovingScenes()
{
	Ticker = FTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([this](float DeltaTime) {
		RefineWhatRests(DeltaTime);
		return true;
	}));
}

FMovingScenes::~FMovingScenes()
{
	FTicker::GetCoreTicker().RemoveTicker(Ticker);
}

void FMovingScenes::NoteMove(FViewportClient& Client)
{
	if (bHurries)
	{
		SecondsSinceMove[&Client] = 0.0f;
	}
}

int FMovingScenes::FindCoarseness(double Pixels, double SecondsPerPixel)
{
	int Coarseness = 1;
	while (Coarseness < Coarsest && Pixels * SecondsPerPixel / (Coarseness * Coarseness) > LongestPaint)
	{
		++Coarseness;
	}
	return Coarseness;
}

void FMovingScenes::Paint(FViewportClient& Client, const FSceneCamera& Camera, const FIntPoint& Size, FColor* Pixels)
{
	const double Count = static_cast<double>(Size.X) * Size.Y;
	const int Coarseness = SecondsSinceMove.count(&Client) > 0 ? FindCoarseness(Count, SecondsPerPixel) : 1;
	const auto Start = std::chrono::steady_clock::now();
	PaintSceneCoarsely(Camera, Size, Pixels, Coarseness, CountThreads());
	if (Count > 0.0)
	{
		const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
		SecondsPerPixel = Seconds * Coarseness * Coarseness / Count;
	}
}

void FMovingScenes::RefineWhatRests(float DeltaTime)
{
	for (auto Moving = SecondsSinceMove.begin(); Moving != SecondsSinceMove.end();)
	{
		Moving->second += DeltaTime;
		if (Moving->second < RestSeconds)
		{
			++Moving;
			continue;
		}
		for (FLevelEditorViewportClient* const Client : GEditor->GetLevelViewportClients())
		{
			// Only pointers are compared: the client may have gone meanwhile.
			if (static_cast<FViewportClient*>(Client) == Moving->first)
			{
				Client->Invalidate();
			}
		}
		Moving = SecondsSinceMove.erase(Moving);
	}
}
}

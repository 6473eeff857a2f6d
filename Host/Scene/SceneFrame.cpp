// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneFrame.h"

#include "Host/Scene/SceneContent.h"

#include <atomic>
#include <cstddef>
#include <thread>

namespace TintmillHost
{
namespace SceneFramePrivate
{
constexpr int TileSize = 24;

/** Half the width of the picture at distance 1: a horizontal angle of about 58 degrees. */
constexpr float HalfWidth = 0.55f;

/** Runs Work for every number below Count, on some threads. */
template <typename WorkType>
void ForEach(std::size_t Count, int ThreadCount, const WorkType& Work)
{
	std::atomic<std::size_t> Next = 0;
	const auto Run = [&] {
		for (std::size_t Index = Next++; Index < Count; Index = Next++)
		{
			Work(Index);
		}
	};
	std::vector<std::thread> Threads;
	for (int Thread = 1; Thread < ThreadCount; ++Thread)
	{
		Threads.emplace_back(Run);
	}
	Run();
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
}

/** 1 near a whole multiple of Step, fading over half a pixel. */
static float GridLine(float Position, float Step, float Pixel)
{
	const float InCell = Position / Step - std::floor(Position / Step + 0.5f);
	return 1.0f - SmoothStep(0.5f * Pixel, 1.2f * Pixel, std::fabs(InCell) * Step);
}
}

FSceneFrame::FSceneFrame(const FSceneCamera& InCamera, const FScenePicture& InPicture)
	: Camera(InCamera)
	, Picture(InPicture)
	, Axes(SceneCameraAxes(InCamera))
	, Tracer(BuildScene(InCamera.Seconds), InCamera.View != ESceneView::Perspective)
	, bFlat(InCamera.View != ESceneView::Perspective)
{
	// A tall picture keeps its height instead of its width, so that the figures stay inside.
	const float Extent = static_cast<float>(std::max(Picture.Width, Picture.Height * 4 / 3));
	PixelSize = 2.0f * (bFlat ? Camera.Distance : SceneFramePrivate::HalfWidth) / Extent;
	Samples.resize(static_cast<std::size_t>(Picture.Width) * static_cast<std::size_t>(Picture.Height));
	for (int Top = 0; Top < Picture.Height; Top += SceneFramePrivate::TileSize)
	{
		for (int Left = 0; Left < Picture.Width; Left += SceneFramePrivate::TileSize)
		{
			FTile Tile;
			Tile.Left = Left;
			Tile.Top = Top;
			Tile.Right = std::min(Left + SceneFramePrivate::TileSize, Picture.Width);
			Tile.Bottom = std::min(Top + SceneFramePrivate::TileSize, Picture.Height);
			Tiles.push_back(Tile);
		}
	}
}

void FSceneFrame::Paint(int ThreadCount)
{
	SceneFramePrivate::ForEach(Tiles.size(), ThreadCount, [this](std::size_t Index) { SampleTile(Tiles[Index]); });
	SceneFramePrivate::ForEach(Tiles.size(), ThreadCount, [this](std::size_t Index) { RefineTile(Tiles[Index]); });
}

FSceneRay FSceneFrame::RayAt(float X, float Y) const
{
	const float Right = (X - 0.5f * static_cast<float>(Picture.Width)) * PixelSize;
	const float Up = (0.5f * static_cast<float>(Picture.Height) - Y) * PixelSize;
	FSceneRay Ray;
	if (bFlat)
	{
		Ray.Direction = Axes.Forward;
		Ray.Origin = Camera.Target + Axes.Right * Right + Axes.Up * Up - Axes.Forward * 30.0f;
		return Ray;
	}
	Ray.Direction = Normalized(Axes.Forward + Axes.Right * Right + Axes.Up * Up);
	Ray.Origin = Camera.Target - Axes.Forward * Camera.Distance;
	Ray.Origin.Z = std::max(Ray.Origin.Z, 0.05f);
	return Ray;
}

FSceneSample FSceneFrame::SampleAt(const FTile& Tile, float X, float Y) const
{
	const FSceneRay Ray = RayAt(X, Y);
	if (bFlat && Camera.View != ESceneView::Top && Ray.Origin.Z < 0.0f)
	{
		// Seen edge-on, the floor is cut open.
		return {Backdrop(Ray), 1};
	}
	FSceneSample Sample = Tracer.Trace(Ray, Tile.Visible, bFlat ? PixelSize : 0.0f, bFlat ? 0.0f : PixelSize);
	if (Sample.Key == 0 && bFlat)
	{
		Sample.Light = Backdrop(Ray);
	}
	return Sample;
}

FSceneVector FSceneFrame::Backdrop(const FSceneRay& Ray) const
{
	const float Across = Camera.View == ESceneView::Front ? Ray.Origin.Y : Ray.Origin.X;
	const float Height = Ray.Origin.Z;
	const float Shade = 0.105f + 0.05f * Saturate(Height / 4.0f);
	FSceneVector Light = Height < 0.0f ? FSceneVector{0.040f, 0.039f, 0.040f} : FSceneVector{Shade * 0.96f, Shade * 0.99f, Shade * 1.06f};
	const float Minor =
		std::max(SceneFramePrivate::GridLine(Across, 0.5f, PixelSize), SceneFramePrivate::GridLine(Height, 0.5f, PixelSize));
	const float Major =
		std::max(SceneFramePrivate::GridLine(Across, 2.0f, PixelSize), SceneFramePrivate::GridLine(Height, 2.0f, PixelSize));
	Light = Mix(Light, {0.17f, 0.175f, 0.185f}, 0.30f * Minor);
	return Mix(Light, {0.22f, 0.225f, 0.235f}, 0.35f * Major);
}

void FSceneFrame::SampleTile(FTile& Tile)
{
	const float CenterX = 0.5f * static_cast<float>(Tile.Left + Tile.Right);
	const float CenterY = 0.5f * static_cast<float>(Tile.Top + Tile.Bottom);
	const float Reach = 0.75f * SceneFramePrivate::TileSize * PixelSize;
	Tracer.FindVisible(RayAt(CenterX, CenterY), bFlat ? Reach : 0.0f, bFlat ? 0.0f : Reach, Tile.Visible);
	for (int Y = Tile.Top; Y < Tile.Bottom; ++Y)
	{
		for (int X = Tile.Left; X < Tile.Right; ++X)
		{
			At(X, Y) = SampleAt(Tile, static_cast<float>(X) + 0.5f, static_cast<float>(Y) + 0.5f);
		}
	}
}

void FSceneFrame::RefineTile(const FTile& Tile) const
{
	static const float Offsets[6][2] = {{0.08f, 0.42f}, {0.25f, 0.92f}, {0.42f, 0.25f}, {0.58f, 0.75f}, {0.75f, 0.08f}, {0.92f, 0.58f}};
	for (int Y = Tile.Top; Y < Tile.Bottom; ++Y)
	{
		for (int X = Tile.Left; X < Tile.Right; ++X)
		{
			const FSceneSample& Center = At(X, Y);
			if (!IsEdge(X, Y))
			{
				Picture.Set(X, Y, ToDisplay(Center.Light, Center.Key == 0 ? SceneDither(X, Y) : 0.0f));
				continue;
			}
			// Displayed values are averaged, so that the edge of a very bright thing is as smooth as any other.
			int Red = 0;
			int Green = 0;
			int Blue = 0;
			for (const float(&Offset)[2] : Offsets)
			{
				const FSceneSample Sample = SampleAt(Tile, static_cast<float>(X) + Offset[0], static_cast<float>(Y) + Offset[1]);
				const FSceneByteColor Color = ToDisplay(Sample.Light, 0.0f);
				Red += Color.Red;
				Green += Color.Green;
				Blue += Color.Blue;
			}
			Picture.Set(X, Y,
				{static_cast<std::uint8_t>((Red + 3) / 6), static_cast<std::uint8_t>((Green + 3) / 6),
					static_cast<std::uint8_t>((Blue + 3) / 6)});
		}
	}
}

bool FSceneFrame::IsEdge(int X, int Y) const
{
	const int Key = At(X, Y).Key;
	for (int StepY = -1; StepY <= 1; ++StepY)
	{
		for (int StepX = -1; StepX <= 1; ++StepX)
		{
			const int OtherX = std::min(std::max(X + StepX, 0), Picture.Width - 1);
			const int OtherY = std::min(std::max(Y + StepY, 0), Picture.Height - 1);
			if (At(OtherX, OtherY).Key != Key)
			{
				return true;
			}
		}
	}
	return false;
}

FSceneSample& FSceneFrame::At(int X, int Y)
{
	return Samples[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Picture.Width) + static_cast<std::size_t>(X)];
}

const FSceneSample& FSceneFrame::At(int X, int Y) const
{
	return Samples[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Picture.Width) + static_cast<std::size_t>(X)];
}
}

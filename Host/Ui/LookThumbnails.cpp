// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/LookThumbnails.h"

#include "Host/Program/Strings.h"
#include "Host/Scene/ScenePainter.h"

#include "Brushes/SlateImageBrush.h"
#include "Containers/Ticker.h"
#include "Engine/Texture2D.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/AssetThumbnails.h"
#include "StandIn/LookFiles.h"
#include "Templates/Casts.h"
#include "TintmillObject.h"

#include <algorithm>
#include <chrono>
#include <iterator>

namespace TintmillHost
{
namespace
{
/** The picture of a list's row: twice as many pixels as it has units, for fine screens. Larger areas get pictures of their own size. */
constexpr int32 PictureWidth = 64;
constexpr int32 PictureHeight = 58;

/** The widest picture that is made; wider areas stretch it. */
constexpr int32 MaxLength = 512;

/** Thumbnails beyond this number are dropped when nobody asked for them of late. */
constexpr size_t MaxThumbnails = 512;

/** Frames after which a thumbnail counts as not asked for, and a dropped brush as gone from the screen. */
constexpr uint64 ManyFrames = 120;

/** Frames after which something counts as out of sight. */
constexpr uint64 FewFrames = 2;

/** How long looks are loaded in one frame; the last one may take longer. */
constexpr std::chrono::milliseconds LoadTime(6);

/** Pictures of one thing in more sizes than these are made anew when they are needed. */
constexpr size_t MaxSizes = 4;

const std::string BrushPrefix = "LookThumbnail:";

/** Swaps the first and the third byte of every pixel: the look's order is red first, the picture's blue first. */
void SwapRedAndBlue(FPicture& Picture)
{
	for (FColor& Pixel : Picture.Pixels)
	{
		std::swap(Pixel.R, Pixel.B);
	}
}

FPictureView View(const FPicture& Picture)
{
	return {FIntPoint(Picture.Width, Picture.Height), Picture.Pixels.GetData()};
}
}

FLookThumbnails::FLookThumbnails()
{
	StandIn::SetAssetThumbnails([this](const FAssetData& Asset) { return Request(Asset); });
	Ticker = FTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([this](float) {
		Update();
		return true;
	}));
}

FLookThumbnails::~FLookThumbnails()
{
	FTicker::GetCoreTicker().RemoveTicker(Ticker);
	StandIn::SetAssetThumbnails(StandIn::FAssetThumbnails());
}

FPictureView FLookThumbnails::Find(const FSlateBrush& Brush, const FIntPoint& DeviceSize)
{
	const std::string Name = ToUtf8(Brush.GetResourceName().ToString());
	if (!Name.starts_with(BrushPrefix))
	{
		return {};
	}
	const auto Found = Thumbnails.find(Name.substr(BrushPrefix.size(), Name.rfind('|') - BrushPrefix.size()));
	if (Found == Thumbnails.end())
	{
		return {};
	}
	FThumbnail& Thumbnail = Found->second;
	const FSize Size = DeviceSize.X <= PictureWidth && DeviceSize.Y <= PictureHeight
		? FSize(PictureWidth, PictureHeight)
		: FSize(std::clamp(DeviceSize.X, 1, MaxLength), std::clamp(DeviceSize.Y, 1, MaxLength));
	const auto Known = Thumbnail.Pictures.find(Size);
	if (Known != Thumbnail.Pictures.end())
	{
		return View(Known->second);
	}
	const UTintmillObject* const Look = Thumbnail.Look.Get();
	if (Look == nullptr)
	{
		return {};
	}
	if (Thumbnail.Pictures.size() >= MaxSizes)
	{
		Thumbnail.Pictures.clear();
	}
	FPicture& Picture = Thumbnail.Pictures[Size] = GetScene(Size);
	SwapRedAndBlue(Picture);
	StandIn::ApplyLookToPixels(Look, reinterpret_cast<uint8*>(Picture.Pixels.GetData()), Picture.Pixels.Num());
	SwapRedAndBlue(Picture);
	return View(Picture);
}

const FSlateBrush* FLookThumbnails::Request(const FAssetData& Asset)
{
	const UClass* const Class = Asset.GetClass();
	if (Class != nullptr && Class->IsChildOf(UTexture2D::StaticClass()))
	{
		return RequestTexture(Asset);
	}
	if (Class == nullptr || !Class->IsChildOf(UTintmillObject::StaticClass()))
	{
		return nullptr;
	}
	const std::string Path = ToUtf8(Asset.ObjectPath.ToString());
	const auto [Entry, bNew] = Thumbnails.try_emplace(Path);
	FThumbnail& Thumbnail = Entry->second;
	if (bNew)
	{
		Thumbnail.Asset = Asset;
		Waiting.push_back(Path);
	}
	Thumbnail.LastAsked = Frame;
	return Thumbnail.Brush.get();
}

const FSlateBrush* FLookThumbnails::RequestTexture(const FAssetData& Asset)
{
	const auto [Entry, bNew] = Textures.try_emplace(ToUtf8(Asset.ObjectPath.ToString()));
	StandIn::FAssetFile File;
	if (bNew && StandIn::FindAssetFile(Asset.PackageName.ToString(), File))
	{
		Entry->second = std::make_unique<FSlateImageBrush>(FName(*File.FileName), FVector2D(64.0f, 64.0f));
	}
	return Entry->second.get();
}

void FLookThumbnails::Update()
{
	++Frame;
	for (auto It = Thumbnails.begin(); It != Thumbnails.end();)
	{
		FThumbnail& Thumbnail = It->second;
		if (Thumbnail.bMade && StandIn::GetLookRevision(Thumbnail.Look.Get()) != Thumbnail.Revision)
		{
			// The file was changed, broken or mended.
			Drop(Thumbnail);
			Waiting.push_back(It->first);
		}
		// What was scrolled out of sight before its turn came is not loaded.
		It = !Thumbnail.bMade && Thumbnail.LastAsked + FewFrames < Frame ? Thumbnails.erase(It) : std::next(It);
	}
	const auto Start = std::chrono::steady_clock::now();
	while (!Waiting.empty() && std::chrono::steady_clock::now() - Start < LoadTime)
	{
		// What was scrolled into sight last comes first.
		const std::string Path = Waiting.back();
		Waiting.pop_back();
		Make(Path);
	}
	Dropped.erase(std::remove_if(Dropped.begin(), Dropped.end(), [this](const auto& Entry) { return Entry.first + ManyFrames < Frame; }),
		Dropped.end());
	if (Thumbnails.size() > MaxThumbnails)
	{
		DropUnused();
	}
}

void FLookThumbnails::Make(const std::string& Path)
{
	const auto Found = Thumbnails.find(Path);
	const bool bWanted = Found != Thumbnails.end() && !Found->second.bMade;
	UTintmillObject* const Look = bWanted ? Cast<UTintmillObject>(Found->second.Asset.GetAsset()) : nullptr;
	if (Look == nullptr)
	{
		return;
	}
	FThumbnail& Thumbnail = Found->second;
	Thumbnail.Look = Look;
	Thumbnail.Revision = StandIn::GetLookRevision(Look);
	Thumbnail.bMade = true;
	if (StandIn::GetLookState(Look) == StandIn::ELookState::Ready)
	{
		Thumbnail.Brush = std::make_unique<FSlateImageBrush>(
			FName(*FromUtf8(BrushPrefix + Path + '|' + std::to_string(Thumbnail.Revision))), FVector2D(32.0f, 29.0f));
	}
}

void FLookThumbnails::Drop(FThumbnail& Thumbnail)
{
	if (Thumbnail.Brush)
	{
		Dropped.emplace_back(Frame, std::move(Thumbnail.Brush));
	}
	Thumbnail.Pictures.clear();
	Thumbnail.bMade = false;
}

void FLookThumbnails::DropUnused()
{
	for (auto It = Thumbnails.begin(); It != Thumbnails.end();)
	{
		if (It->second.LastAsked + ManyFrames < Frame)
		{
			Drop(It->second);
			It = Thumbnails.erase(It);
		}
		else
		{
			++It;
		}
	}
}

const FPicture& FLookThumbnails::GetScene(const FSize& Size)
{
	const auto Found = Scenes.find(Size);
	if (Found != Scenes.end())
	{
		return Found->second;
	}
	if (Scenes.size() >= MaxSizes)
	{
		Scenes.clear();
	}
	FPicture& Scene = Scenes[Size];
	Scene.Width = Size.first;
	Scene.Height = Size.second;
	Scene.Pixels.SetNumZeroed(Size.first * Size.second);
	FSceneCamera Camera = DefaultSceneCamera(1);
	ZoomSceneCamera(Camera, 0.6f);
	PaintScene(Camera, FIntPoint(Size.first, Size.second), Scene.Pixels.GetData());
	return Scene;
}
}

// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/LookThumbnails.h"

#include "Host/Program/Strings.h"
#include "Host/Scene/ScenePainter.h"

#include "Brushes/SlateImageBrush.h"
#include "Containers/Ticker.h"
#include "Framework/Application/SlateApplication.h"
#include "StandIn/AssetThumbnails.h"
#include "StandIn/LookFiles.h"
#include "Templates/Casts.h"
#include "TintmillObject.h"

#include <utility>

namespace TintmillHost
{
namespace
{
/** Twice as many pixels as a list's row has units, for fine screens. */
const FIntPoint PictureSize(64, 58);

const std::string BrushPrefix = "LookThumbnail:";

/** Swaps the first and the third byte of every pixel: the look's order is red first, the picture's blue first. */
void SwapRedAndBlue(FPicture& Picture)
{
	for (FColor& Pixel : Picture.Pixels)
	{
		std::swap(Pixel.R, Pixel.B);
	}
}
}

FLookThumbnails::FLookThumbnails()
{
	StandIn::SetAssetThumbnails([this](const FAssetData& Asset) { return Request(Asset); });
	Ticker = FTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([this](float) {
		MakeNext();
		return true;
	}));
}

FLookThumbnails::~FLookThumbnails()
{
	FTicker::GetCoreTicker().RemoveTicker(Ticker);
	StandIn::SetAssetThumbnails(StandIn::FAssetThumbnails());
}

FPictureView FLookThumbnails::Find(const FSlateBrush& Brush) const
{
	const std::string Name = ToUtf8(Brush.GetResourceName().ToString());
	const auto Found = Name.starts_with(BrushPrefix) ? Thumbnails.find(Name.substr(BrushPrefix.size())) : Thumbnails.end();
	if (Found == Thumbnails.end())
	{
		return {};
	}
	const FPicture& Picture = Found->second.Picture;
	return {FIntPoint(Picture.Width, Picture.Height), Picture.Pixels.GetData()};
}

const FSlateBrush* FLookThumbnails::Request(const FAssetData& Asset)
{
	const UClass* const Class = Asset.GetClass();
	if (Class == nullptr || !Class->IsChildOf(UTintmillObject::StaticClass()))
	{
		return nullptr;
	}
	const std::string Path = ToUtf8(Asset.ObjectPath.ToString());
	const auto [Entry, bNew] = Thumbnails.try_emplace(Path);
	if (bNew)
	{
		Entry->second.Asset = Asset;
		Waiting.push_back(Path);
	}
	return Entry->second.Brush.get();
}

void FLookThumbnails::MakeNext()
{
	if (!FSlateApplication::IsInitialized() || !FSlateApplication::Get().AnyMenusVisible())
	{
		// The next list shows what the files hold then.
		Thumbnails.clear();
		Waiting.clear();
		return;
	}
	if (!Waiting.empty())
	{
		// What was scrolled into sight last comes first.
		const std::string Path = Waiting.back();
		Waiting.pop_back();
		Make(Thumbnails[Path]);
	}
}

void FLookThumbnails::Make(FThumbnail& Thumbnail)
{
	const UTintmillObject* const Look = Cast<UTintmillObject>(Thumbnail.Asset.GetAsset());
	if (Look == nullptr || StandIn::GetLookState(Look) != StandIn::ELookState::Ready)
	{
		return;
	}
	if (Scene.Pixels.Num() == 0)
	{
		Scene.Width = PictureSize.X;
		Scene.Height = PictureSize.Y;
		Scene.Pixels.SetNumZeroed(PictureSize.X * PictureSize.Y);
		FSceneCamera Camera = DefaultSceneCamera(1);
		ZoomSceneCamera(Camera, 0.6f);
		PaintScene(Camera, PictureSize, Scene.Pixels.GetData());
	}
	Thumbnail.Picture = Scene;
	SwapRedAndBlue(Thumbnail.Picture);
	StandIn::ApplyLookToPixels(Look, reinterpret_cast<uint8*>(Thumbnail.Picture.Pixels.GetData()), Thumbnail.Picture.Pixels.Num());
	SwapRedAndBlue(Thumbnail.Picture);
	Thumbnail.Brush = std::make_unique<FSlateImageBrush>(
		FName(*FromUtf8(BrushPrefix + ToUtf8(Thumbnail.Asset.ObjectPath.ToString()))), FVector2D(32.0f, 29.0f));
}
}

// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditor/LookBuilderFixture.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "Slate/SceneViewport.h"
#include "StandIn/PixelReads.h"
#include "StandIn/ScenePainter.h"
#include "TintmillDisplayManager.h"
#include "TintmillObject.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

void FRecordingLookBuilder::Open(const StandIn::FLookBuilderRequest& Request)
{
	Requests.push_back(Request);
	if (WhenOpened)
	{
		WhenOpened(Request);
	}
}

std::string FRecordingLookBuilder::GetNames() const
{
	FEventLog Names;
	for (const StandIn::FLookBuilderRequest& Request : Requests)
	{
		Names.Add(ToStd(Request.Asset->GetName()));
	}
	return Names.Get();
}

FDrawWatch::FDrawWatch(std::function<void()> InWhenDrawn)
	: WhenDrawn(std::move(InWhenDrawn))
{
	StandIn::RegisterPicturePass(this);
}

FDrawWatch::~FDrawWatch()
{
	StandIn::UnregisterPicturePass(this);
}

void FDrawWatch::Apply(FViewportClient*, const FIntPoint&, FColor*)
{
	WhenDrawn();
}

uint64 FDrawWatch::GetStateKey(FViewportClient*) const
{
	return 1;
}

FLookBuilderFixture::FLookBuilderFixture()
{
	WriteLook("Teal");
	WriteLook("Amber");
	WriteLook("Rose");
	StandIn::SetScenePainter([](FViewportClient&, const FIntPoint& Size, FColor* Pixels) {
		for (int32 Index = 0; Index < Size.X * Size.Y; ++Index)
		{
			Pixels[Index] = GetScenePixel(Index);
		}
	});
	StandIn::SetLookBuilder(&Builder);
}

FLookBuilderFixture::~FLookBuilderFixture()
{
	StandIn::OnPixelsRead().Remove(ReadHandle);
	DrawWatch.reset();
	StandIn::SetLookBuilder(nullptr);
	StandIn::SetScenePainter(StandIn::FScenePainter());
}

void FLookBuilderFixture::OpenEditor(const FIntPoint& Size)
{
	StartEditor(TEXT("OnePane"));
	GetPane(0)->GetSceneViewport()->SetFixedViewportSize(static_cast<uint32>(Size.X), static_cast<uint32>(Size.Y));
}

void FLookBuilderFixture::WatchEvents()
{
	DrawWatch = std::make_unique<FDrawWatch>([this] { Events.Add("draw"); });
	ReadHandle = StandIn::OnPixelsRead().AddLambda(
		[this](const FRenderTarget&, const FReadSurfaceDataFlags&, const FIntRect&) { Events.Add("read"); });
	Builder.WhenOpened = [this](const StandIn::FLookBuilderRequest&) { Events.Add("open"); };
}

UTintmillObject* FLookBuilderFixture::LoadLook(const TCHAR* Name)
{
	UTintmillObject* const Look = LoadObject<UTintmillObject>(nullptr, *FString::Printf(TEXT("/Game/Looks/%s.%s"), Name, Name));
	EXPECT_NE(Look, nullptr);
	return Look;
}

UObject* FLookBuilderFixture::GetOtherObject()
{
	return GetTransientPackage();
}

FViewport* FLookBuilderFixture::GetActiveViewport()
{
	return GEditor->GetActiveViewport();
}

FTintmillDisplayConfiguration& FLookBuilderFixture::GetRecord()
{
	return GetDisplayManager().FindOrAddDisplayConfiguration(GetActiveViewport()->GetClient());
}

void FLookBuilderFixture::SwitchOn(const TCHAR* LookName, float Intensity)
{
	FTintmillDisplayConfiguration& Record = GetRecord();
	Record.bEnableDisplay = true;
	Record.Intensity = Intensity;
	Record.LookAsset = LoadLook(LookName);
}

TArray<uint8> FLookBuilderFixture::GetPlainPicture(const FIntPoint& Size)
{
	TArray<uint8> Bytes;
	for (int32 Index = 0; Index < Size.X * Size.Y; ++Index)
	{
		const FColor Pixel = GetScenePixel(Index);
		Bytes.Append({Pixel.R, Pixel.G, Pixel.B, Pixel.A});
	}
	return Bytes;
}

FColor FLookBuilderFixture::GetScenePixel(int32 Index)
{
	// No two channels alike, and an alpha that nobody would make up.
	return FColor(static_cast<uint8>(200 + Index), static_cast<uint8>(100 + 3 * Index), static_cast<uint8>(10 + 5 * Index),
		static_cast<uint8>(7 * Index));
}

// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditorStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace TintmillEditorStyle
{
static void SetImageBrush(FSlateStyleSet& StyleSet, FName BrushName, const ANSICHAR* ImageName, const FVector2D& ImageSize)
{
	StyleSet.Set(BrushName,
		new FSlateImageBrush(StyleSet.RootToContentDir(ImageName, TEXT(".png")), ImageSize, FLinearColor(1.0f, 1.0f, 1.0f, 1.0f),
			ESlateBrushTileType::NoTile, ESlateBrushImageType::FullColor));
}
}

void FTintmillEditorStyle::Initialize(TUniquePtr<FSlateStyleSet>& StyleSet)
{
	StyleSet = MakeUnique<FSlateStyleSet>(TEXT("TintmillStyle"));

	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("Tintmill"));
	if (Plugin.IsValid())
	{
		StyleSet->SetContentRoot(FPaths::Combine(Plugin->GetBaseDir(), TEXT("Editor/Icons")));
	}

	TintmillEditorStyle::SetImageBrush(*StyleSet, "ClassThumbnail.TintmillObject", "TintmillIcon_64x", FVector2D(64.0f, 64.0f));
	TintmillEditorStyle::SetImageBrush(*StyleSet, "ClassIcon.TintmillObject", "TintmillIcon_20x", FVector2D(20.0f, 20.0f));

	FSlateStyleRegistry::RegisterSlateStyle(*StyleSet);
}

void FTintmillEditorStyle::Shutdown(TUniquePtr<FSlateStyleSet>& StyleSet)
{
	if (StyleSet.IsValid())
	{
		FSlateStyleRegistry::UnRegisterSlateStyle(*StyleSet);
		StyleSet.Reset();
	}
}

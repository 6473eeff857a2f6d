// Copyright The Tintmill authors. All rights reserved.

#include "AssetTypeActions_TintmillObject.h"

#include "TintmillAPI_ImageDesc.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillDisplayManager.h"
#include "TintmillEditorModule.h"
#include "TintmillModule.h"
#include "TintmillObject.h"
#include "ViewportCapture.h"

#include "AssetRegistry/AssetData.h"
#include "AssetTypeCategories.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Templates/Casts.h"
#include "UnrealClient.h"

#define LOCTEXT_NAMESPACE "AssetTypeActions_TintmillObject"

FText FAssetTypeActions_TintmillObject::GetName() const
{
	return LOCTEXT("AssetTypeActions_Tintmill", "Tintmill");
}

UClass* FAssetTypeActions_TintmillObject::GetSupportedClass() const
{
	return UTintmillObject::StaticClass();
}

FColor FAssetTypeActions_TintmillObject::GetTypeColor() const
{
	return FColor::White;
}

void FAssetTypeActions_TintmillObject::OpenAssetEditor(
	const TArray<UObject*>& InObjects, TSharedPtr<IToolkitHost> /*EditWithinLevelEditor*/)
{
	FViewport* const CurrentViewport = GEditor->GetActiveViewport();
	check(CurrentViewport);

	FTintmillDisplayManager* const DisplayManager = FTintmillEditorModule::GetTintmillModule().GetDisplayManager();
	FTintmillDisplayConfiguration& DisplayConfiguration = DisplayManager->FindOrAddDisplayConfiguration(CurrentViewport->GetClient());

	// The builder grades the picture as it is without the look. One draw serves all assets of the selection.
	const bool bWasDisplayEnabled = DisplayConfiguration.bEnableDisplay;
	DisplayConfiguration.bEnableDisplay = false;
	CurrentViewport->Draw(true);

	// By index: a builder may open or load assets, and so change the array that the selection came from.
	for (int32 Index = 0; Index < InObjects.Num(); ++Index)
	{
		if (UTintmillObject* const LookAsset = Cast<UTintmillObject>(InObjects[Index]))
		{
			FViewportCapture Capture(*CurrentViewport);
			LookAsset->DisplayUserInterface(Capture.GetImageDesc());
		}
	}

	DisplayConfiguration.bEnableDisplay = bWasDisplayEnabled;
}

uint32 FAssetTypeActions_TintmillObject::GetCategories()
{
	return EAssetTypeCategories::Misc;
}

FText FAssetTypeActions_TintmillObject::GetAssetDescription(const FAssetData& AssetData) const
{
	FString Description;
	if (Cast<UTintmillObject>(AssetData.GetAsset()))
	{
		Description = TEXT("Double click to open up the tintmill builder.");
	}

	// This key and that of the type's name differ in their stems on purpose.
	return FText::Format(LOCTEXT("AssetTypeActions_TintmillObject_Description", "{0}"), FText::FromString(Description));
}

bool FAssetTypeActions_TintmillObject::IsImportedAsset() const
{
	return false;
}

#undef LOCTEXT_NAMESPACE

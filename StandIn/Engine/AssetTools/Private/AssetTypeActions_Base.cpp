// Copyright The Tintmill authors. All rights reserved.

#include "AssetTypeActions_Base.h"
#include "AssetRegistry/ARFilter.h"
#include "StandIn/FatalHandler.h"
#include "Toolkits/SimpleAssetEditor.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "Widgets/SWidget.h"

bool FAssetTypeActions_Base::HasActions(const TArray<UObject*>&) const
{
	return false;
}

void FAssetTypeActions_Base::GetActions(const TArray<UObject*>&, FMenuBuilder&) {}

void FAssetTypeActions_Base::GetActions(const TArray<UObject*>&, FToolMenuSection&) {}

void FAssetTypeActions_Base::OpenAssetEditor(const TArray<UObject*>& InObjects, TSharedPtr<IToolkitHost> EditWithinLevelEditor)
{
	FSimpleAssetEditor::CreateEditor(EToolkitMode::Standalone, EditWithinLevelEditor, InObjects);
}

void FAssetTypeActions_Base::AssetsActivated(const TArray<UObject*>&, EAssetTypeActivationMethod::Type) {}

bool FAssetTypeActions_Base::AssetsActivatedOverride(const TArray<UObject*>&, EAssetTypeActivationMethod::Type)
{
	return false;
}

TArray<FAssetData> FAssetTypeActions_Base::GetValidAssetsForPreviewOrEdit(TArrayView<const FAssetData> InAssetDatas, bool)
{
	TArray<FAssetData> All;
	for (const FAssetData& AssetData : InAssetDatas)
	{
		All.Add(AssetData);
	}
	return All;
}

void FAssetTypeActions_Base::Merge(UObject*)
{
	STANDIN_MISSING(TEXT("FAssetTypeActions_Base::Merge"));
}

void FAssetTypeActions_Base::Merge(UObject*, UObject*, UObject*, const FOnMergeResolved&)
{
	STANDIN_MISSING(TEXT("FAssetTypeActions_Base::Merge"));
}

FString FAssetTypeActions_Base::GetObjectDisplayName(UObject* Object) const
{
	return Object->GetName();
}

const TArray<FText>& FAssetTypeActions_Base::GetSubMenus() const
{
	static const TArray<FText> EmptySubMenus;
	return EmptySubMenus;
}

void FAssetTypeActions_Base::PerformAssetDiff(UObject*, UObject*, const FRevisionInfo&, const FRevisionInfo&) const
{
	STANDIN_MISSING(TEXT("FAssetTypeActions_Base::PerformAssetDiff"));
}

UThumbnailInfo* FAssetTypeActions_Base::GetThumbnailInfo(UObject*) const
{
	return nullptr;
}

EThumbnailPrimType FAssetTypeActions_Base::GetDefaultThumbnailPrimitiveType(UObject*) const
{
	return TPT_None;
}

TSharedPtr<SWidget> FAssetTypeActions_Base::GetThumbnailOverlay(const FAssetData&) const
{
	return nullptr;
}

FText FAssetTypeActions_Base::GetAssetDescription(const FAssetData&) const
{
	return FText::GetEmpty();
}

void FAssetTypeActions_Base::GetResolvedSourceFilePaths(const TArray<UObject*>&, TArray<FString>&) const {}

void FAssetTypeActions_Base::GetSourceFileLabels(const TArray<UObject*>&, TArray<FString>&) const {}

void FAssetTypeActions_Base::BuildBackendFilter(FARFilter& InFilter)
{
	InFilter.ClassNames.Add(GetSupportedClass()->GetFName());
	InFilter.bRecursiveClasses = true;
}

FText FAssetTypeActions_Base::GetDisplayNameFromAssetData(const FAssetData&) const
{
	return FText::GetEmpty();
}

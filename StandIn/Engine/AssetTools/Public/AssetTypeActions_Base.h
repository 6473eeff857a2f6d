// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "IAssetTypeActions.h"

// Defaults of a type's actions. The default editor (a details panel) and the text comparison are not in the stand-in and are
// refused; the names of the source files of assets are empty.

/** Base of asset type actions; leaves name, class, colour and categories open. */
class ASSETTOOLS_API FAssetTypeActions_Base : public IAssetTypeActions
{
public:
	virtual bool HasActions(const TArray<UObject*>& InObjects) const override;
	virtual void GetActions(const TArray<UObject*>& InObjects, class FMenuBuilder& MenuBuilder) override;
	virtual void GetActions(const TArray<UObject*>& InObjects, FToolMenuSection& Section) override;
	virtual void OpenAssetEditor(
		const TArray<UObject*>& InObjects, TSharedPtr<IToolkitHost> EditWithinLevelEditor = TSharedPtr<IToolkitHost>()) override;
	virtual void AssetsActivated(const TArray<UObject*>& InObjects, EAssetTypeActivationMethod::Type ActivationType) override;
	virtual bool AssetsActivatedOverride(const TArray<UObject*>& InObjects, EAssetTypeActivationMethod::Type ActivationType) override;
	virtual TArray<FAssetData> GetValidAssetsForPreviewOrEdit(TArrayView<const FAssetData> InAssetDatas, bool bIsPreview) override;
	virtual bool CanFilter() override { return true; }
	virtual bool CanLocalize() const override { return true; }
	virtual bool CanMerge() const override { return false; }
	virtual void Merge(UObject* InObject) override;
	virtual void Merge(UObject* BaseAsset, UObject* RemoteAsset, UObject* LocalAsset, const FOnMergeResolved& ResolutionCallback) override;
	virtual FString GetObjectDisplayName(UObject* Object) const override;
	virtual const TArray<FText>& GetSubMenus() const override;
	virtual bool ShouldForceWorldCentric() override { return false; }
	virtual void PerformAssetDiff(
		UObject* OldAsset, UObject* NewAsset, const FRevisionInfo& OldRevision, const FRevisionInfo& NewRevision) const override;
	virtual UThumbnailInfo* GetThumbnailInfo(UObject* Asset) const override;
	virtual EThumbnailPrimType GetDefaultThumbnailPrimitiveType(UObject* Asset) const override;
	virtual TSharedPtr<SWidget> GetThumbnailOverlay(const FAssetData& AssetData) const override;
	virtual FText GetAssetDescription(const FAssetData& AssetData) const override;
	virtual bool IsImportedAsset() const override { return false; }
	virtual void GetResolvedSourceFilePaths(const TArray<UObject*>& TypeAssets, TArray<FString>& OutSourceFilePaths) const override;
	virtual void GetSourceFileLabels(const TArray<UObject*>& TypeAssets, TArray<FString>& OutSourceFileLabels) const override;
	virtual void BuildBackendFilter(FARFilter& InFilter) override;
	virtual FText GetDisplayNameFromAssetData(const FAssetData& AssetData) const override;
	virtual void SetSupported(bool bInSupported) override { bIsSupported = bInSupported; }
	virtual bool IsSupported() const override { return bIsSupported; }

private:
	bool bIsSupported = false;
};

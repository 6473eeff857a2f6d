// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"
#include "AssetTypeCategories.h"
#include "Containers/ArrayView.h"
#include "Misc/DateTime.h"
#include "ThumbnailRendering/ThumbnailManager.h"

class IToolkitHost;
class SWidget;
class UPackage;
class UThumbnailInfo;
struct FARFilter;
struct FToolMenuSection;

// What the editor knows about a type of assets. All virtual functions of the interface are here, in its order; those for
// merging, source files and differences are called by nobody in the stand-in.

/** How an asset was activated in the content browser. */
namespace EAssetTypeActivationMethod
{
enum Type
{
	DoubleClicked,
	Opened,
	Previewed
};
}

/** How a merge ended. */
namespace EMergeResult
{
enum Type
{
	Unknown,
	Completed,
	Cancelled
};
}

/** Called when a merge has ended. */
DECLARE_DELEGATE_TwoParams(FOnMergeResolved, UPackage*, EMergeResult::Type);

/** One revision of an asset in source control. */
struct FRevisionInfo
{
	FString Revision;
	int32 Changelist;
	FDateTime Date;
};

/** Name, look and behaviour of a type of assets. */
class IAssetTypeActions : public TSharedFromThis<IAssetTypeActions>
{
public:
	virtual ~IAssetTypeActions() {}

	/** Name of the type. */
	virtual FText GetName() const = 0;

	/** Class of the assets; classes derived from it count unless they have actions of their own. */
	virtual UClass* GetSupportedClass() const = 0;

	/** Colour of the strip under thumbnails; alpha is ignored. */
	virtual FColor GetTypeColor() const = 0;

	/** True if GetActions has something to add to the context menu. */
	virtual bool HasActions(const TArray<UObject*>& InObjects) const = 0;

	/** Adds to the context menu. */
	virtual void GetActions(const TArray<UObject*>& InObjects, class FMenuBuilder& MenuBuilder) = 0;

	/** Adds to the context menu. */
	virtual void GetActions(const TArray<UObject*>& InObjects, FToolMenuSection& Section) = 0;

	/** Opens assets for editing; the host is null unless editing takes place in the level editor. */
	virtual void OpenAssetEditor(
		const TArray<UObject*>& InObjects, TSharedPtr<IToolkitHost> EditWithinLevelEditor = TSharedPtr<IToolkitHost>()) = 0;

	/** Deprecated form of AssetsActivatedOverride. */
	virtual void AssetsActivated(const TArray<UObject*>& InObjects, EAssetTypeActivationMethod::Type ActivationType) = 0;

	/** Reacts to a double click; true stops there, false goes on to opening. */
	virtual bool AssetsActivatedOverride(const TArray<UObject*>& InObjects, EAssetTypeActivationMethod::Type ActivationType) = 0;

	/** Those of the assets that may be opened or previewed. */
	virtual TArray<FAssetData> GetValidAssetsForPreviewOrEdit(TArrayView<const FAssetData> InAssetDatas, bool bIsPreview) = 0;

	/** True if the content browser offers a filter of this type. */
	virtual bool CanFilter() = 0;

	/** True if assets of the type may be localised. */
	virtual bool CanLocalize() const = 0;

	/** True if assets of the type may be merged. */
	virtual bool CanMerge() const = 0;

	/** Merges an asset with its other revisions. */
	virtual void Merge(UObject* InObject) = 0;

	/** Merges two revisions of an asset that come from a base. */
	virtual void Merge(UObject* BaseAsset, UObject* RemoteAsset, UObject* LocalAsset, const FOnMergeResolved& ResolutionCallback) = 0;

	/** Bits of EAssetTypeCategories. */
	virtual uint32 GetCategories() = 0;

	/** Name of an object for people. */
	virtual FString GetObjectDisplayName(UObject* Object) const = 0;

	/** Names of the nested submenus in which the type is listed. */
	virtual const TArray<FText>& GetSubMenus() const = 0;

	/** True if editing always takes place in the level editor. */
	virtual bool ShouldForceWorldCentric() = 0;

	/** Shows how two revisions differ. */
	virtual void PerformAssetDiff(
		UObject* OldAsset, UObject* NewAsset, const FRevisionInfo& OldRevision, const FRevisionInfo& NewRevision) const = 0;

	/** Settings of an asset's thumbnail, or null. */
	virtual UThumbnailInfo* GetThumbnailInfo(UObject* Asset) const = 0;

	/** Shape that the thumbnail is drawn on. */
	virtual EThumbnailPrimType GetDefaultThumbnailPrimitiveType(UObject* Asset) const = 0;

	/** Widget laid over thumbnails, or null. */
	virtual TSharedPtr<SWidget> GetThumbnailOverlay(const FAssetData& AssetData) const = 0;

	/** Line of the tool tip that says what the asset is for. */
	virtual FText GetAssetDescription(const FAssetData& AssetData) const = 0;

	/** True if assets of the type come from source files. */
	virtual bool IsImportedAsset() const = 0;

	/** Adds the source files of assets. */
	virtual void GetResolvedSourceFilePaths(const TArray<UObject*>& TypeAssets, TArray<FString>& OutSourceFilePaths) const = 0;

	/** Adds the labels of the source files of assets. */
	virtual void GetSourceFileLabels(const TArray<UObject*>& TypeAssets, TArray<FString>& OutSourceFileLabels) const = 0;

	/** Adds to a filter what it takes to find assets of the type. */
	virtual void BuildBackendFilter(FARFilter& InFilter) = 0;

	/** Name of the type of one asset; empty means GetName. */
	virtual FText GetDisplayNameFromAssetData(const FAssetData& AssetData) const = 0;

	/** Tells whether the type is supported in this editor. */
	virtual void SetSupported(bool bInSupported) = 0;

	/** True if the type is supported in this editor. */
	virtual bool IsSupported() const = 0;
};

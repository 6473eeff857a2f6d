// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"
#include "Delegates/Delegate.h"
#include "Widgets/SWidget.h"

class IPropertyHandle;
class UFactory;

// The asset picker of the property editor. The property handle and the owner assets are taken and not used. The clipboard is the
// process's own, and "Create New Asset" lists the factories but making an asset needs a dialog that is refused. View
// options are left out.
// Settled here: the rows of "Current Asset" are ordinary menu entries, so choosing one closes the menus; the list closes nothing.

/** An asset was chosen; invalid data means that the choice was cleared. */
DECLARE_DELEGATE_OneParam(FOnAssetSelected, const FAssetData&);

/** True hides the asset. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FOnShouldFilterAsset, const FAssetData&);

namespace PropertyCustomizationHelpers
{
/** Makes an asset picker with copy and paste. */
PROPERTYEDITOR_API TSharedRef<SWidget> MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const TArray<const UClass*>& AllowedClasses, const TArray<UFactory*>& NewAssetFactories, FOnShouldFilterAsset OnShouldFilterAsset,
	FOnAssetSelected OnSet, FSimpleDelegate OnClose, const TSharedPtr<IPropertyHandle>& PropertyHandle = TSharedPtr<IPropertyHandle>(),
	const TArray<FAssetData>& OwnerAssetArray = TArray<FAssetData>());

/** Makes an asset picker with copy and paste that leaves out some classes. */
PROPERTYEDITOR_API TSharedRef<SWidget> MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const TArray<const UClass*>& AllowedClasses, const TArray<const UClass*>& DisallowedClasses, const TArray<UFactory*>& NewAssetFactories,
	FOnShouldFilterAsset OnShouldFilterAsset, FOnAssetSelected OnSet, FSimpleDelegate OnClose,
	const TSharedPtr<IPropertyHandle>& PropertyHandle = TSharedPtr<IPropertyHandle>(),
	const TArray<FAssetData>& OwnerAssetArray = TArray<FAssetData>());

/** Makes an asset picker with or without copy and paste. */
PROPERTYEDITOR_API TSharedRef<SWidget> MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const bool AllowCopyPaste, const TArray<const UClass*>& AllowedClasses, const TArray<UFactory*>& NewAssetFactories,
	FOnShouldFilterAsset OnShouldFilterAsset, FOnAssetSelected OnSet, FSimpleDelegate OnClose,
	const TSharedPtr<IPropertyHandle>& PropertyHandle = TSharedPtr<IPropertyHandle>(),
	const TArray<FAssetData>& OwnerAssetArray = TArray<FAssetData>());

/** Makes an asset picker with or without copy and paste that leaves out some classes. */
PROPERTYEDITOR_API TSharedRef<SWidget> MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const bool AllowCopyPaste, const TArray<const UClass*>& AllowedClasses, const TArray<const UClass*>& DisallowedClasses,
	const TArray<UFactory*>& NewAssetFactories, FOnShouldFilterAsset OnShouldFilterAsset, FOnAssetSelected OnSet, FSimpleDelegate OnClose,
	const TSharedPtr<IPropertyHandle>& PropertyHandle = TSharedPtr<IPropertyHandle>(),
	const TArray<FAssetData>& OwnerAssetArray = TArray<FAssetData>());

/** The default objects of the factories that can make new assets of the classes. */
PROPERTYEDITOR_API TArray<UFactory*> GetNewAssetFactoriesForClasses(const TArray<const UClass*>& Classes);

/** The default objects of the factories that can make new assets of the classes but not of the disallowed ones. */
PROPERTYEDITOR_API TArray<UFactory*> GetNewAssetFactoriesForClasses(
	const TArray<const UClass*>& Classes, const TArray<const UClass*>& DisallowedClasses);
}

// Copyright The Tintmill authors. All rights reserved.

#include "PropertyCustomizationHelpers.h"
#include "AssetPicker/SAssetPickerWithMenu.h"
#include "Factories/Factory.h"
#include "UObject/UObjectIterator.h"

TSharedRef<SWidget> PropertyCustomizationHelpers::MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const TArray<const UClass*>& AllowedClasses, const TArray<UFactory*>& NewAssetFactories, FOnShouldFilterAsset OnShouldFilterAsset,
	FOnAssetSelected OnSet, FSimpleDelegate OnClose, const TSharedPtr<IPropertyHandle>& PropertyHandle,
	const TArray<FAssetData>& OwnerAssetArray)
{
	return MakeAssetPickerWithMenu(InitialObject, AllowClear, true, AllowedClasses, TArray<const UClass*>(), NewAssetFactories,
		OnShouldFilterAsset, OnSet, OnClose, PropertyHandle, OwnerAssetArray);
}

TSharedRef<SWidget> PropertyCustomizationHelpers::MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const TArray<const UClass*>& AllowedClasses, const TArray<const UClass*>& DisallowedClasses, const TArray<UFactory*>& NewAssetFactories,
	FOnShouldFilterAsset OnShouldFilterAsset, FOnAssetSelected OnSet, FSimpleDelegate OnClose,
	const TSharedPtr<IPropertyHandle>& PropertyHandle, const TArray<FAssetData>& OwnerAssetArray)
{
	return MakeAssetPickerWithMenu(InitialObject, AllowClear, true, AllowedClasses, DisallowedClasses, NewAssetFactories,
		OnShouldFilterAsset, OnSet, OnClose, PropertyHandle, OwnerAssetArray);
}

TSharedRef<SWidget> PropertyCustomizationHelpers::MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const bool AllowCopyPaste, const TArray<const UClass*>& AllowedClasses, const TArray<UFactory*>& NewAssetFactories,
	FOnShouldFilterAsset OnShouldFilterAsset, FOnAssetSelected OnSet, FSimpleDelegate OnClose,
	const TSharedPtr<IPropertyHandle>& PropertyHandle, const TArray<FAssetData>& OwnerAssetArray)
{
	return MakeAssetPickerWithMenu(InitialObject, AllowClear, AllowCopyPaste, AllowedClasses, TArray<const UClass*>(), NewAssetFactories,
		OnShouldFilterAsset, OnSet, OnClose, PropertyHandle, OwnerAssetArray);
}

TSharedRef<SWidget> PropertyCustomizationHelpers::MakeAssetPickerWithMenu(const FAssetData& InitialObject, const bool AllowClear,
	const bool AllowCopyPaste, const TArray<const UClass*>& AllowedClasses, const TArray<const UClass*>& DisallowedClasses,
	const TArray<UFactory*>& NewAssetFactories, FOnShouldFilterAsset OnShouldFilterAsset, FOnAssetSelected OnSet, FSimpleDelegate OnClose,
	const TSharedPtr<IPropertyHandle>&, const TArray<FAssetData>&)
{
	return SNew(SAssetPickerWithMenu)
		.InitialObject(InitialObject)
		.AllowClear(AllowClear)
		.AllowCopyPaste(AllowCopyPaste)
		.AllowedClasses(AllowedClasses)
		.DisallowedClasses(DisallowedClasses)
		.NewAssetFactories(NewAssetFactories)
		.OnShouldFilterAsset(OnShouldFilterAsset)
		.OnSet(OnSet)
		.OnClose(OnClose);
}

TArray<UFactory*> PropertyCustomizationHelpers::GetNewAssetFactoriesForClasses(const TArray<const UClass*>& Classes)
{
	return GetNewAssetFactoriesForClasses(Classes, TArray<const UClass*>());
}

TArray<UFactory*> PropertyCustomizationHelpers::GetNewAssetFactoriesForClasses(
	const TArray<const UClass*>& Classes, const TArray<const UClass*>& DisallowedClasses)
{
	TArray<UFactory*> Factories;
	for (TObjectIterator<UClass> It; It; ++It)
	{
		if (!It->IsChildOf(UFactory::StaticClass()) || It->HasAnyClassFlags(CLASS_Abstract))
		{
			continue;
		}
		UFactory* Factory = It->GetDefaultObject<UFactory>();
		const UClass* Made = Factory->ShouldShowInNewMenu() ? Factory->GetSupportedClass() : nullptr;
		const auto IsAncestor = [Made](const UClass* Ancestor) { return Made && Made->IsChildOf(Ancestor); };
		if (Classes.ContainsByPredicate(IsAncestor) && !DisallowedClasses.ContainsByPredicate(IsAncestor))
		{
			Factories.Add(Factory);
		}
	}
	return Factories;
}

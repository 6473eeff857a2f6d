// Copyright The Tintmill authors. All rights reserved.

#include "AssetTools.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "Editor.h"
#include "Factories/Factory.h"
#include "Misc/PackageName.h"
#include "NewAssetFile.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

DEFINE_LOG_CATEGORY_STATIC(LogAssetTools, Log, All);

namespace AssetToolsPrivate
{
bool IsNameTaken(const FString& PackageName, const FString& AssetName)
{
	const FString ObjectPath = PackageName + TEXT(".") + AssetName;
	if (StaticFindObject(UObject::StaticClass(), nullptr, *ObjectPath))
	{
		return true;
	}
	const IAssetRegistry& Registry = FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get();
	return Registry.GetAssetByObjectPath(FName(*ObjectPath)).IsValid();
}
}

void FAssetTools::RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions)
{
	NewActions->SetSupported(true);
	AllActions.Add(NewActions);
}

void FAssetTools::UnregisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& ActionsToRemove)
{
	AllActions.Remove(ActionsToRemove);
}

void FAssetTools::GetAssetTypeActionsList(TArray<TWeakPtr<IAssetTypeActions>>& OutAssetTypeActionsList) const
{
	for (const TSharedRef<IAssetTypeActions>& Actions : AllActions)
	{
		OutAssetTypeActionsList.Add(Actions);
	}
}

TWeakPtr<IAssetTypeActions> FAssetTools::GetAssetTypeActionsForClass(const UClass* Class) const
{
	TSharedPtr<IAssetTypeActions> Nearest;
	for (const TSharedRef<IAssetTypeActions>& Actions : AllActions)
	{
		const UClass* Supported = Actions->GetSupportedClass();
		const bool bFits = Class && Supported && Class->IsChildOf(Supported);
		if (bFits && (!Nearest.IsValid() || Supported->IsChildOf(Nearest->GetSupportedClass())))
		{
			Nearest = Actions;
		}
	}
	return Nearest;
}

EAssetTypeCategories::Type FAssetTools::RegisterAdvancedAssetCategory(FName CategoryKey, FText CategoryDisplayName)
{
	for (const FAdvancedCategory& Category : AdvancedCategories)
	{
		if (Category.Key == CategoryKey)
		{
			return Category.Bit;
		}
	}
	const uint32 NextBit = AdvancedCategories.Num() > 0 ? static_cast<uint32>(AdvancedCategories.Last().Bit) << 1
														: static_cast<uint32>(EAssetTypeCategories::FirstUser);
	if (NextBit == 0)
	{
		UE_LOG(LogAssetTools, Warning,
			TEXT(
				"RegisterAssetTypeCategory(\"%s\", \"%s\") failed as all user bits have been exhausted (placing into the Misc category instead)"),
			*CategoryKey.ToString(), *CategoryDisplayName.ToString());
		return EAssetTypeCategories::Misc;
	}
	FAdvancedCategory Category;
	Category.Key = CategoryKey;
	Category.DisplayName = CategoryDisplayName;
	Category.Bit = static_cast<EAssetTypeCategories::Type>(NextBit);
	AdvancedCategories.Add(Category);
	return Category.Bit;
}

EAssetTypeCategories::Type FAssetTools::FindAdvancedAssetCategory(FName CategoryKey) const
{
	for (const FAdvancedCategory& Category : AdvancedCategories)
	{
		if (Category.Key == CategoryKey)
		{
			return Category.Bit;
		}
	}
	return EAssetTypeCategories::Misc;
}

FText FAssetTools::GetCategoryName(const uint32 Bit) const
{
	const TCHAR* const Names[] = {TEXT("Basic"), TEXT("Animation"), TEXT("Materials & Textures"), TEXT("Sounds"), TEXT("Physics"),
		TEXT("User Interface"), TEXT("Miscellaneous"), TEXT("Gameplay"), TEXT("Blueprints"), TEXT("Media")};
	for (uint32 Index = 0; Index < UE_ARRAY_COUNT(Names); ++Index)
	{
		if (Bit == 1u << Index)
		{
			return FText::FromString(Names[Index]);
		}
	}
	for (const FAdvancedCategory& Category : AdvancedCategories)
	{
		if (Category.Bit == Bit)
		{
			return Category.DisplayName;
		}
	}
	return FText::GetEmpty();
}

UObject* FAssetTools::CreateAsset(
	const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext)
{
	if (!ensure(AssetClass || Factory))
	{
		return nullptr;
	}
	if (AssetClass && Factory && !ensure(AssetClass->IsChildOf(Factory->GetSupportedClass())))
	{
		return nullptr;
	}
	const FString PackageName = PackagePath / AssetName;
	if (AssetName.IsEmpty() || !FPackageName::IsValidLongPackageName(PackageName))
	{
		UE_LOG(LogAssetTools, Warning, TEXT("The asset '%s' was not made: this is not a name for a package."), *PackageName);
		return nullptr;
	}
	if (AssetToolsPrivate::IsNameTaken(PackageName, AssetName))
	{
		UE_LOG(LogAssetTools, Warning, TEXT("The asset '%s' was not made: there is an asset of this name already."), *PackageName);
		return nullptr;
	}

	UClass* ClassToUse = AssetClass ? AssetClass : Factory->GetSupportedClass();
	FNewAssetFile File;
	if (!File.Write(PackageName, ClassToUse))
	{
		return nullptr;
	}
	UPackage* Package = CreatePackage(*PackageName);
	const EObjectFlags Flags = RF_Public | RF_Standalone | RF_Transactional;
	UObject* NewAsset = nullptr;
	if (Factory)
	{
		NewAsset = Factory->FactoryCreateNew(ClassToUse, Package, FName(*AssetName), Flags, nullptr, GWarn, CallingContext);
	}
	else
	{
		NewAsset = NewObject<UObject>(Package, ClassToUse, FName(*AssetName), Flags);
	}
	if (!NewAsset)
	{
		File.Delete();
		return nullptr;
	}
	File.GiveTo(NewAsset);
	FAssetRegistryModule::AssetCreated(NewAsset);
	Package->MarkPackageDirty();
	return NewAsset;
}

void FAssetTools::CreateUniqueAssetName(
	const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName)
{
	const FString Base = InBasePackageName + InSuffix;
	for (int32 Number = 0;; ++Number)
	{
		OutPackageName = Number == 0 ? Base : Base + FString::FromInt(Number);
		OutAssetName = FPackageName::GetLongPackageAssetName(OutPackageName);
		if (!AssetToolsPrivate::IsNameTaken(OutPackageName, OutAssetName))
		{
			return;
		}
	}
}

void FAssetTools::OpenEditorForAssets(const TArray<UObject*>& Assets)
{
	GEditor->GetEditorSubsystem<UAssetEditorSubsystem>()->OpenEditorForAssets(Assets);
}

TArray<UFactory*> FAssetTools::GetNewAssetFactories() const
{
	TArray<UFactory*> Factories;
	for (TObjectIterator<UClass> It; It; ++It)
	{
		UClass* Class = *It;
		if (!Class->IsChildOf(UFactory::StaticClass()) || Class->HasAnyClassFlags(CLASS_Abstract))
		{
			continue;
		}
		UFactory* Factory = Class->GetDefaultObject<UFactory>();
		if (Factory->ShouldShowInNewMenu() && ensure(!Factory->GetDisplayName().IsEmpty()))
		{
			Factories.Add(Factory);
		}
	}
	return Factories;
}

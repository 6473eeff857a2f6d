// Copyright The Tintmill authors. All rights reserved.

#include "Factories/Factory.h"
#include "AssetToolsModule.h"
#include "AssetTypeCategories.h"

namespace FactoryPrivate
{
TSharedPtr<IAssetTypeActions> FindActions(const UClass* Class)
{
	return Class ? FAssetToolsModule::GetModule().Get().GetAssetTypeActionsForClass(Class).Pin() : TSharedPtr<IAssetTypeActions>();
}
}

UFactory::UFactory(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, ImportPriority(100)
	, bCreateNew(false)
	, bEditAfterNew(false)
	, bEditorImport(false)
	, bText(false)
{
}

UObject* UFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context,
	FFeedbackContext* Warn, FName)
{
	return FactoryCreateNew(InClass, InParent, InName, Flags, Context, Warn);
}

UObject* UFactory::FactoryCreateNew(UClass*, UObject*, FName, EObjectFlags, UObject*, FFeedbackContext*)
{
	return nullptr;
}

FText UFactory::GetDisplayName() const
{
	UClass* Class = GetSupportedClass();
	if (!Class)
	{
		return FText::GetEmpty();
	}
	if (const TSharedPtr<IAssetTypeActions> Actions = FactoryPrivate::FindActions(Class))
	{
		const FText Name = Actions->GetName();
		if (!Name.IsEmpty())
		{
			return Name;
		}
	}
	return Class->GetDisplayNameText();
}

uint32 UFactory::GetMenuCategories() const
{
	const TSharedPtr<IAssetTypeActions> Actions = FactoryPrivate::FindActions(GetSupportedClass());
	return Actions.IsValid() ? Actions->GetCategories() : static_cast<uint32>(EAssetTypeCategories::Misc);
}

const TArray<FText>& UFactory::GetMenuCategorySubMenus() const
{
	static const TArray<FText> None;
	const TSharedPtr<IAssetTypeActions> Actions = FactoryPrivate::FindActions(GetSupportedClass());
	return Actions.IsValid() ? Actions->GetSubMenus() : None;
}

FText UFactory::GetToolTip() const
{
	const UClass* Class = GetSupportedClass();
	return Class ? FText::FromString(Class->GetMetaData(TEXT("ToolTip"))) : FText::GetEmpty();
}

bool UFactory::DoesSupportClass(UClass* Class)
{
	return Class == GetSupportedClass();
}

UClass* UFactory::ResolveSupportedClass()
{
	return SupportedClass;
}

FString UFactory::GetDefaultNewAssetName() const
{
	return FString(TEXT("New")) + GetSupportedClass()->GetName();
}

UClass* UFactory::GetSupportedClass() const
{
	// As in the editor, a factory without a fixed class is asked for one.
	return SupportedClass.Get() ? SupportedClass.Get() : const_cast<UFactory*>(this)->ResolveSupportedClass();
}

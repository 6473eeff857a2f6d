// Copyright The Tintmill authors. All rights reserved.

#include "Factories/Factory.h"
#include "AssetToolsModule.h"
#include "AssetTypeCategories.h"
#include "Misc/Char.h"

namespace FactoryPrivate
{
/** "MyLookHD" as "My Look HD". */
FString InWords(const FString& Name)
{
	FString Words;
	for (int32 Index = 0; Index < Name.Len(); ++Index)
	{
		const bool bUpper = FChar::IsUpper(Name[Index]);
		const bool bAfterLower = Index > 0 && !FChar::IsUpper(Name[Index - 1]);
		const bool bBeforeLower = Index > 0 && Index + 1 < Name.Len() && FChar::IsLower(Name[Index + 1]);
		if (Index > 0 && bUpper && (bAfterLower || bBeforeLower))
		{
			Words += TEXT(" ");
		}
		Words.AppendChar(Name[Index]);
	}
	return Words;
}

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
{}

UObject* UFactory::FactoryCreateNew(
	UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn, FName)
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
	const FString ClassName = Class->GetName();
	const FString DisplayName = Class->GetDisplayNameText().ToString();
	return FText::FromString(DisplayName == ClassName ? FactoryPrivate::InWords(ClassName) : DisplayName);
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

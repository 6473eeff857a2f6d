// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/FeedbackContext.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "Factory.generated.h"

// Factories make assets. Only making new ones is here: importing from files, reimporting and their settings are left out. A
// factory is found through its class; there is no registration call.

/** Base of factories. */
UCLASS(Abstract)
class UNREALED_API UFactory : public UObject
{
	GENERATED_BODY()

public:
	UFactory(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Class of the assets made. */
	UPROPERTY()
	TSubclassOf<UObject> SupportedClass;

	/** Class of the context object. */
	UPROPERTY()
	TSubclassOf<UObject> ContextClass;

	/** File types that can be imported, each "ext;description". */
	UPROPERTY()
	TArray<FString> Formats;

	/** Which factory is preferred for a file; higher ones first. */
	UPROPERTY()
	int32 ImportPriority;

	/** True if the factory can make new assets. */
	UPROPERTY()
	uint8 bCreateNew : 1;

	/** True if the editor opens the new asset. */
	UPROPERTY()
	uint8 bEditAfterNew : 1;

	/** True if the factory imports files. */
	UPROPERTY()
	uint8 bEditorImport : 1;

	/** True if the factory imports text. */
	UPROPERTY()
	uint8 bText : 1;

	/** Makes a new asset; this is the form that the editor calls, and it forwards to the one without context. */
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context,
		FFeedbackContext* Warn, FName CallingContext);

	/** Makes a new asset; null if it cannot be made. */
	virtual UObject* FactoryCreateNew(
		UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn);

	/** True if the factory can make new assets. */
	virtual bool CanCreateNew() const { return bCreateNew; }

	/** True if the factory is listed in the new-asset menu. */
	virtual bool ShouldShowInNewMenu() const { return CanCreateNew(); }

	/** Name of the thumbnail of the new-asset menu, or NAME_None for the class's own. */
	virtual FName GetNewAssetThumbnailOverride() const { return NAME_None; }

	/** Name in the new-asset menu: that of the type's actions, else the class's name in words. */
	virtual FText GetDisplayName() const;

	/** Bits of EAssetTypeCategories: those of the type's actions, else Misc. */
	virtual uint32 GetMenuCategories() const;

	/** Names of nested submenus: those of the type's actions, else none. */
	virtual const TArray<FText>& GetMenuCategorySubMenus() const;

	/** Tool tip in the new-asset menu. */
	virtual FText GetToolTip() const;

	/** Asks the person for what the factory needs; false cancels. */
	virtual bool ConfigureProperties() { return true; }

	/** True if the factory makes assets of a class. */
	virtual bool DoesSupportClass(UClass* Class);

	/** The class of the assets made, found out if it is not fixed. */
	virtual UClass* ResolveSupportedClass();

	/** Name proposed for a new asset: "New" and the class's name. */
	virtual FString GetDefaultNewAssetName() const;

	/** Class of the assets made, or null. */
	UClass* GetSupportedClass() const;
};

// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "CoreGlobals.h"
#include "UObject/UObjectBaseUtility.h"
#include "UObject/UObjectGlobals.h"

// The base class of all objects. Left out: archives (Serialize), script and functions, networking, transactions (Modify only
// marks the package), sparse data, per-object configuration sections, UpdateDefaultConfigFile.

class FConfigCacheIni;
class FEditPropertyChain;
class FProperty;
class ITargetPlatform;
struct FPropertyChangedEvent;
struct FPropertyChangedChainEvent;

namespace UE4
{
/** How far a load of configuration reaches. */
enum ELoadConfigPropagationFlags
{
	LCPF_None = 0x0,
	/** Sections of parent classes are read before the class's own. */
	LCPF_ReadParentSections = 0x1,
	LCPF_PropagateToChildDefaultObjects = 0x2,
	LCPF_PropagateToInstances = 0x4,
	LCPF_ReloadingConfigData = 0x8,
	LCPF_PersistentFlags = LCPF_ReloadingConfigData,
};
}

/** Base class of all objects. */
class COREUOBJECT_API UObject : public UObjectBaseUtility
{
	DECLARE_CLASS(UObject, UObject, CLASS_Abstract | CLASS_NoExport | CLASS_Intrinsic | CLASS_MatchedSerializers, CASTCLASS_None,
		TEXT("/Script/CoreUObject"), NO_API)
	DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(UObject)
	DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(UObject)
	typedef UObject WithinClass;
	static const TCHAR* StaticConfigName() { return TEXT("Engine"); }
	static void StaticRegisterNativesUObject() {}

	UObject();
	UObject(const FObjectInitializer& ObjectInitializer);
	UObject(EStaticConstructor, EObjectFlags InFlags);
	UObject(FVTableHelper& Helper);

	/** Makes a subobject in a constructor, from the archetype's subobject of the name. */
	UObject* CreateDefaultSubobject(
		FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient);
	/** Makes a subobject in a constructor, from the archetype's subobject of the name. */
	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectName, ReturnType, ReturnType, true, bTransient));
	}

	/** After construction, when properties have been initialised from template and configuration. */
	virtual void PostInitProperties();
	virtual void PostLoad() {}
	/** At the start of destruction; overrides call the parent's. */
	virtual void BeginDestroy();
	/** Says that FinishDestroy may come. */
	virtual bool IsReadyForFinishDestroy() { return true; }
	/** At the end of destruction; overrides call the parent's. */
	virtual void FinishDestroy();
	virtual void PostReloadConfig(FProperty* PropertyThatWasLoaded) { (void)PropertyThatWasLoaded; }
	/** Gives the object another name, outer or both; fatal when the name is taken. A null name makes a new one. */
	virtual bool Rename(const TCHAR* NewName = nullptr, UObject* NewOuter = nullptr, ERenameFlags Flags = REN_None);
	virtual void PostRename(UObject* OldOuter, const FName OldName)
	{
		(void)OldOuter;
		(void)OldName;
	}
	/** Marks the package as changed if asked for; there are no transactions. */
	virtual bool Modify(bool bAlwaysMarkDirty = true);
	virtual void PreEditChange(FProperty* PropertyAboutToChange) { (void)PropertyAboutToChange; }
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);
	/** Calls PostEditChangeProperty without a property. */
	virtual void PostEditChange();
	virtual FString GetDesc() { return FString(); }
	virtual UWorld* GetWorld() const;
	/** Says whether the object is an asset: public, in a package of its own kind, no default object. */
	virtual bool IsAsset() const;
	virtual const TCHAR* GetConfigOverridePlatform() const { return nullptr; }
	virtual void OverridePerObjectConfigSection(FString& SectionName) { (void)SectionName; }

	/** Reports references that are no reflected properties; children declare their own function of this name. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	/** The object whose values this one starts from. */
	UObject* GetArchetype() const;
	/** Begins destruction once. */
	bool ConditionalBeginDestroy();
	/** Finishes destruction once, if the object is ready. */
	bool ConditionalFinishDestroy();

	/** Reads the configuration of the class into the object; properties absent from it stay. */
	void LoadConfig(UClass* ConfigClass = nullptr, const TCHAR* Filename = nullptr, uint32 PropagationFlags = UE4::LCPF_None,
		FProperty* PropertyToLoad = nullptr);
	/** Reads the configuration again and tells the object. */
	void ReloadConfig(UClass* ConfigClass = nullptr, const TCHAR* Filename = nullptr, uint32 PropagationFlags = UE4::LCPF_None,
		FProperty* PropertyToLoad = nullptr);
	/** Writes the configuration properties that have all of the flags, and the file at once; copies them to the default object if asked for. */
	void SaveConfig(uint64 Flags = CPF_Config, const TCHAR* Filename = nullptr, FConfigCacheIni* Config = GConfig,
		bool bAllowCopyToDefaultObject = true);

private:
	friend struct FObjectSystemAccess;
};

/** Says whether an object is there and not waiting for its collection. */
FORCEINLINE bool IsValid(const UObject* Test)
{
	return Test && !Test->IsPendingKill();
}

// Copyright The Tintmill authors. All rights reserved.

#include "UObject/UObjectGlobals.h"
#include "UObject/ObjectConstruction.h"
#include "UObject/ObjectHash.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/Package.h"

DEFINE_LOG_CATEGORY(LogUObjectGlobals);
DEFINE_LOG_CATEGORY(LogObj);
DEFINE_LOG_CATEGORY(LogClass);
DEFINE_LOG_CATEGORY(LogGarbage);

FCoreUObjectDelegates::FOnObjectPropertyChanged FCoreUObjectDelegates::OnObjectPropertyChanged;
FCoreUObjectDelegates::FOnAssetLoaded FCoreUObjectDelegates::OnAssetLoaded;

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPreGarbageCollectDelegate()
{
	static FSimpleMulticastDelegate* Delegate = new FSimpleMulticastDelegate;
	return *Delegate;
}

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPostGarbageCollect()
{
	static FSimpleMulticastDelegate* Delegate = new FSimpleMulticastDelegate;
	return *Delegate;
}

void CheckIsClassChildOf_Internal(const UClass* Parent, const UClass* Child)
{
	checkf(Child, TEXT("NewObject called with a nullptr class object"));
	checkf(Child->IsChildOf(Parent), TEXT("NewObject called with invalid class, %s must be a child of %s"), *Child->GetName(),
		*Parent->GetName());
}

UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params)
{
	checkf(Params.InstanceGraph == nullptr && Params.ExternalPackage == nullptr,
		TEXT("not in this stand-in: instancing graphs and external packages"));
	UClass* Class = const_cast<UClass*>(Params.Class);
	UE_CLOG(Class == nullptr, LogUObjectGlobals, Fatal, TEXT("Empty class for object %s"), *Params.Name.ToString());
	checkf(Params.Template == nullptr || Params.Template->IsA(Class) || Class->IsChildOf(Params.Template->GetClass()),
		TEXT("StaticConstructObject %s is not an instance of class %s and it is not a CDO."), *GetFullNameSafe(Params.Template),
		*Class->GetName());
	// The default object has to be there before memory is prepared: making it makes objects, too.
	UObject* Template = Params.Template;
	if (Template == nullptr && UObjectInitialized() && !Class->HasAnyClassFlags(CLASS_Abstract) && Class != UPackage::StaticClass())
	{
		Template = Class->GetDefaultObject();
	}
	UObject* Result =
		StandInPrivate::AllocateObject(Class, Params.Outer, Params.Name, Params.SetFlags | RF_NeedInitialization, Params.InternalSetFlags);
	(*Class->ClassConstructor)(FObjectInitializer(Result, Template, Params.bCopyTransientsFromClassDefaults, true));
	return Result;
}

FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName)
{
	if (BaseName.IsNone())
	{
		BaseName = Class->GetFName();
	}
	FName Name;
	do
	{
		const int32 Number = StandInPrivate::NextNumber(Outer, BaseName);
		Name = FName(BaseName, NAME_EXTERNAL_TO_INTERNAL(Number));
	} while (StandInPrivate::FindInOuter(Outer, Name) != nullptr);
	return Name;
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	FString Name(PackageName != nullptr ? PackageName : TEXT(""));
	UE_CLOG(Name.Contains(TEXT("//")), LogUObjectGlobals, Fatal,
		TEXT("Attempted to create a package with name containing double slashes. PackageName: %s"), *Name);
	while (Name.EndsWith(TEXT(".")))
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("Invalid Package Name entered - '%s'"), *Name);
		Name = Name.LeftChop(1);
	}
	UE_CLOG(Name.Len() == 0 || FName(*Name).IsNone(), LogUObjectGlobals, Fatal,
		TEXT("Attempted to create a package with an empty package name."));
	UPackage* Existing = FindPackage(nullptr, *Name);
	if (Existing != nullptr)
	{
		return Existing;
	}
	FStaticConstructObjectParameters Params(UPackage::StaticClass());
	Params.Outer = nullptr;
	Params.Name = FName(*Name);
	Params.SetFlags = RF_Public;
	return (UPackage*)StaticConstructObject_Internal(Params);
}

UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName)
{
	UObject* Found = StandInPrivate::FindInOuter(InOuter, FName(PackageName, FNAME_Find));
	return Found != nullptr && Found->IsA(UPackage::StaticClass()) ? (UPackage*)Found : nullptr;
}

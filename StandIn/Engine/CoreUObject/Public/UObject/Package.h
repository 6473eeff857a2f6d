// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/Object.h"

// Packages: the outermost objects. Left out: files, linkers, saving (SavePackage), world and chunk data.

class UMetaData;

/** The outermost object of an asset's or module's objects. */
class COREUOBJECT_API UPackage : public UObject
{
	DECLARE_CLASS(UPackage, UObject, CLASS_Intrinsic, CASTCLASS_UPackage, TEXT("/Script/CoreUObject"), NO_API)
	DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(UPackage)
	static void StaticRegisterNativesUPackage() {}
	static void __DefaultConstructor(const FObjectInitializer& X);

	explicit UPackage(const FObjectInitializer& ObjectInitializer);
	virtual ~UPackage();

	/** File that the package was loaded from; None for others. */
	FName FileName;

	void SetDirtyFlag(bool bInIsDirty) { bDirty = bInIsDirty; }
	bool IsDirty() const { return bDirty; }
	void MarkAsFullyLoaded() { bHasBeenFullyLoaded = true; }
	bool IsFullyLoaded() const { return bHasBeenFullyLoaded; }
	void FullyLoad() { bHasBeenFullyLoaded = true; }
	uint32 GetPackageFlags() const { return PackageFlagsPrivate; }
	void SetPackageFlags(uint32 NewFlags) { PackageFlagsPrivate |= NewFlags; }
	void ClearPackageFlags(uint32 NewFlags) { PackageFlagsPrivate &= ~NewFlags; }
	bool HasAnyPackageFlags(uint32 FlagsToCheck) const { return (PackageFlagsPrivate & FlagsToCheck) != 0; }
	bool HasAllPackagesFlags(uint32 FlagsToCheck) const { return (PackageFlagsPrivate & FlagsToCheck) == FlagsToCheck; }
	/** Metadata of the package's types and objects. */
	UMetaData* GetMetaData();
	/** Checksums of the header tool's output for a module's package; 0 for others. */
	uint32 GetBodyCRC() const { return BodyCRC; }
	uint32 GetDeclarationsCRC() const { return DeclarationsCRC; }

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	bool bDirty;
	bool bHasBeenFullyLoaded;
	uint32 PackageFlagsPrivate;
	uint32 BodyCRC;
	uint32 DeclarationsCRC;
	UMetaData* MetaData;

	friend struct FObjectSystemAccess;
};

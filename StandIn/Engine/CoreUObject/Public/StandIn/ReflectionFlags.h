// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"
#include "StandIn/PropertyFlags.h"

// Flags of objects, classes, structs and packages, with the engine's names and values; reach them through UObject/ObjectMacros.h.

/** What an object is and where it stands in its life. */
enum EObjectFlags
{
	RF_NoFlags = 0,
	RF_Public = 0x1,
	RF_Standalone = 0x2,
	RF_MarkAsNative = 0x4,
	RF_Transactional = 0x8,
	RF_ClassDefaultObject = 0x10,
	RF_ArchetypeObject = 0x20,
	RF_Transient = 0x40,
	RF_MarkAsRootSet = 0x80,
	RF_TagGarbageTemp = 0x100,
	RF_NeedInitialization = 0x200,
	RF_NeedLoad = 0x400,
	RF_KeepForCooker = 0x800,
	RF_NeedPostLoad = 0x1000,
	RF_NeedPostLoadSubobjects = 0x2000,
	RF_NewerVersionExists = 0x4000,
	RF_BeginDestroyed = 0x8000,
	RF_FinishDestroyed = 0x10000,
	RF_BeingRegenerated = 0x20000,
	RF_DefaultSubObject = 0x40000,
	RF_WasLoaded = 0x80000,
	RF_TextExportTransient = 0x100000,
	RF_LoadCompleted = 0x200000,
	RF_InheritableComponentTemplate = 0x400000,
	RF_DuplicateTransient = 0x800000,
	RF_StrongRefOnFrame = 0x1000000,
	RF_NonPIEDuplicateTransient = 0x2000000,
	RF_Dynamic = 0x4000000,
	RF_WillBeLoaded = 0x8000000,
	RF_HasExternalPackage = 0x10000000,
};

#define RF_AllFlags (EObjectFlags)0x1fffffff
#define RF_Load \
	((EObjectFlags)(RF_Public | RF_Standalone | RF_Transactional | RF_ClassDefaultObject | RF_ArchetypeObject | RF_DefaultSubObject \
		| RF_TextExportTransient | RF_InheritableComponentTemplate | RF_DuplicateTransient | RF_NonPIEDuplicateTransient))
#define RF_PropagateToSubObjects ((EObjectFlags)(RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient))

inline constexpr EObjectFlags operator|(EObjectFlags A, EObjectFlags B)
{
	return EObjectFlags(uint32(A) | uint32(B));
}
inline constexpr EObjectFlags operator&(EObjectFlags A, EObjectFlags B)
{
	return EObjectFlags(uint32(A) & uint32(B));
}
inline constexpr EObjectFlags operator~(EObjectFlags A)
{
	return EObjectFlags(~uint32(A));
}
inline void operator|=(EObjectFlags& A, EObjectFlags B)
{
	A = A | B;
}
inline void operator&=(EObjectFlags& A, EObjectFlags B)
{
	A = A & B;
}

/** The collector's marks on an object. */
enum class EInternalObjectFlags : int32
{
	None = 0,
	ReachableInCluster = 0x800000,
	ClusterRoot = 0x1000000,
	Native = 0x2000000,
	Async = 0x4000000,
	AsyncLoading = 0x8000000,
	Unreachable = 0x10000000,
	PendingKill = 0x20000000,
	RootSet = 0x40000000,
};
ENUM_CLASS_FLAGS(EInternalObjectFlags);

/** What a class is. */
enum EClassFlags : uint32
{
	CLASS_None = 0,
	CLASS_Abstract = 0x1u,
	CLASS_DefaultConfig = 0x2u,
	CLASS_Config = 0x4u,
	CLASS_Transient = 0x8u,
	CLASS_Parsed = 0x10u,
	CLASS_MatchedSerializers = 0x20u,
	CLASS_ProjectUserConfig = 0x40u,
	CLASS_Native = 0x80u,
	CLASS_NoExport = 0x100u,
	CLASS_NotPlaceable = 0x200u,
	CLASS_PerObjectConfig = 0x400u,
	CLASS_ReplicationDataIsSetUp = 0x800u,
	CLASS_EditInlineNew = 0x1000u,
	CLASS_CollapseCategories = 0x2000u,
	CLASS_Interface = 0x4000u,
	CLASS_CustomConstructor = 0x8000u,
	CLASS_Const = 0x10000u,
	CLASS_LayoutChanging = 0x20000u,
	CLASS_CompiledFromBlueprint = 0x40000u,
	CLASS_MinimalAPI = 0x80000u,
	CLASS_RequiredAPI = 0x100000u,
	CLASS_DefaultToInstanced = 0x200000u,
	CLASS_TokenStreamAssembled = 0x400000u,
	CLASS_HasInstancedReference = 0x800000u,
	CLASS_Hidden = 0x1000000u,
	CLASS_Deprecated = 0x2000000u,
	CLASS_HideDropDown = 0x4000000u,
	CLASS_GlobalUserConfig = 0x8000000u,
	CLASS_Intrinsic = 0x10000000u,
	CLASS_Constructed = 0x20000000u,
	CLASS_ConfigDoNotCheckDefaults = 0x40000000u,
	CLASS_NewerVersionExists = 0x80000000u,
};

/** Class flags that children take over. */
#define CLASS_Inherit \
	((EClassFlags)(CLASS_Transient | CLASS_DefaultConfig | CLASS_Config | CLASS_PerObjectConfig | CLASS_ConfigDoNotCheckDefaults \
		| CLASS_NotPlaceable | CLASS_Const | CLASS_HasInstancedReference | CLASS_Deprecated | CLASS_DefaultToInstanced \
		| CLASS_GlobalUserConfig | CLASS_ProjectUserConfig))
#define CLASS_ScriptInherit ((EClassFlags)(CLASS_Inherit | CLASS_EditInlineNew | CLASS_CollapseCategories))
#define CLASS_AllFlags ((EClassFlags)0xffffffffu)

inline constexpr EClassFlags operator|(EClassFlags A, EClassFlags B)
{
	return EClassFlags(uint32(A) | uint32(B));
}
inline void operator|=(EClassFlags& A, EClassFlags B)
{
	A = A | B;
}

/** Classes and property kinds that casts test by a bit. */
enum EClassCastFlags : uint64
{
	CASTCLASS_None = 0,
	CASTCLASS_UField = 0x1ull,
	CASTCLASS_FInt8Property = 0x2ull,
	CASTCLASS_UEnum = 0x4ull,
	CASTCLASS_UStruct = 0x8ull,
	CASTCLASS_UScriptStruct = 0x10ull,
	CASTCLASS_UClass = 0x20ull,
	CASTCLASS_FByteProperty = 0x40ull,
	CASTCLASS_FIntProperty = 0x80ull,
	CASTCLASS_FFloatProperty = 0x100ull,
	CASTCLASS_FUInt64Property = 0x200ull,
	CASTCLASS_FClassProperty = 0x400ull,
	CASTCLASS_FUInt32Property = 0x800ull,
	CASTCLASS_FInterfaceProperty = 0x1000ull,
	CASTCLASS_FNameProperty = 0x2000ull,
	CASTCLASS_FStrProperty = 0x4000ull,
	CASTCLASS_FProperty = 0x8000ull,
	CASTCLASS_FObjectProperty = 0x10000ull,
	CASTCLASS_FBoolProperty = 0x20000ull,
	CASTCLASS_FUInt16Property = 0x40000ull,
	CASTCLASS_UFunction = 0x80000ull,
	CASTCLASS_FStructProperty = 0x100000ull,
	CASTCLASS_FArrayProperty = 0x200000ull,
	CASTCLASS_FInt64Property = 0x400000ull,
	CASTCLASS_FDelegateProperty = 0x800000ull,
	CASTCLASS_FNumericProperty = 0x1000000ull,
	CASTCLASS_FMulticastDelegateProperty = 0x2000000ull,
	CASTCLASS_FObjectPropertyBase = 0x4000000ull,
	CASTCLASS_FWeakObjectProperty = 0x8000000ull,
	CASTCLASS_FLazyObjectProperty = 0x10000000ull,
	CASTCLASS_FSoftObjectProperty = 0x20000000ull,
	CASTCLASS_FTextProperty = 0x40000000ull,
	CASTCLASS_FInt16Property = 0x80000000ull,
	CASTCLASS_FDoubleProperty = 0x100000000ull,
	CASTCLASS_FSoftClassProperty = 0x200000000ull,
	CASTCLASS_UPackage = 0x400000000ull,
	CASTCLASS_ULevel = 0x800000000ull,
	CASTCLASS_AActor = 0x1000000000ull,
	CASTCLASS_APlayerController = 0x2000000000ull,
	CASTCLASS_APawn = 0x4000000000ull,
	CASTCLASS_USceneComponent = 0x8000000000ull,
	CASTCLASS_UPrimitiveComponent = 0x10000000000ull,
	CASTCLASS_USkinnedMeshComponent = 0x20000000000ull,
	CASTCLASS_USkeletalMeshComponent = 0x40000000000ull,
	CASTCLASS_UBlueprint = 0x80000000000ull,
	CASTCLASS_UDelegateFunction = 0x100000000000ull,
	CASTCLASS_UStaticMeshComponent = 0x200000000000ull,
	CASTCLASS_FMapProperty = 0x400000000000ull,
	CASTCLASS_FSetProperty = 0x800000000000ull,
	CASTCLASS_FEnumProperty = 0x1000000000000ull,
};

#define CASTCLASS_AllFlags ((EClassCastFlags)0xffffffffffffffffull)

inline constexpr EClassCastFlags operator|(EClassCastFlags A, EClassCastFlags B)
{
	return EClassCastFlags(uint64(A) | uint64(B));
}

/** What a struct is. */
enum EStructFlags
{
	STRUCT_NoFlags = 0,
	STRUCT_Native = 0x1,
	STRUCT_IdenticalNative = 0x2,
	STRUCT_HasInstancedReference = 0x4,
	STRUCT_NoExport = 0x8,
	STRUCT_Atomic = 0x10,
	STRUCT_Immutable = 0x20,
	STRUCT_AddStructReferencedObjects = 0x40,
	STRUCT_RequiredAPI = 0x200,
	STRUCT_NetSerializeNative = 0x400,
	STRUCT_SerializeNative = 0x800,
	STRUCT_CopyNative = 0x1000,
	STRUCT_IsPlainOldData = 0x2000,
	STRUCT_NoDestructor = 0x4000,
	STRUCT_ZeroConstructor = 0x8000,
	STRUCT_ExportTextItemNative = 0x10000,
	STRUCT_ImportTextItemNative = 0x20000,
	STRUCT_PostSerializeNative = 0x40000,
	STRUCT_SerializeFromMismatchedTag = 0x80000,
	STRUCT_NetDeltaSerializeNative = 0x100000,
	STRUCT_PostScriptConstruct = 0x200000,
	STRUCT_NetSharedSerialization = 0x400000,
	STRUCT_Trashed = 0x800000,
};

/** What a package is. */
enum EPackageFlags
{
	PKG_None = 0,
	PKG_NewlyCreated = 0x1u,
	PKG_ClientOptional = 0x2u,
	PKG_ServerSideOnly = 0x4u,
	PKG_CompiledIn = 0x10u,
	PKG_ForDiffing = 0x20u,
	PKG_EditorOnly = 0x40u,
	PKG_Developer = 0x80u,
	PKG_UncookedOnly = 0x100u,
	PKG_Cooked = 0x200u,
	PKG_ContainsNoAsset = 0x400u,
	PKG_UnversionedProperties = 0x2000u,
	PKG_ContainsMapData = 0x4000u,
	PKG_Compiling = 0x10000u,
	PKG_ContainsMap = 0x20000u,
	PKG_RequiresLocalizationGather = 0x40000u,
	PKG_PlayInEditor = 0x100000u,
	PKG_ContainsScript = 0x200000u,
	PKG_DisallowExport = 0x400000u,
	PKG_DynamicImports = 0x10000000u,
	PKG_RuntimeGenerated = 0x20000000u,
	PKG_ReloadingForCooker = 0x40000000u,
	PKG_FilterEditorOnly = 0x80000000u,
};

inline constexpr EPackageFlags operator|(EPackageFlags A, EPackageFlags B)
{
	return EPackageFlags(uint32(A) | uint32(B));
}

/** What an enumeration is. */
enum class EEnumFlags
{
	None,
	Flags = 1,
	NewerVersionExists = 2
};

/** How an array keeps its memory. */
enum class EArrayPropertyFlags
{
	None,
	UsesMemoryImageAllocator
};

/** What happens to an object's old name. */
typedef uint32 ERenameFlags;
#define REN_None 0x0000
#define REN_ForceNoResetLoaders 0x0001
#define REN_Test 0x0002
#define REN_DoNotDirty 0x0004
#define REN_DontCreateRedirectors 0x0010
#define REN_NonTransactional 0x0020

/** How an object is loaded. */
enum ELoadFlags
{
	LOAD_None = 0,
	LOAD_NoWarn = 0x2,
	LOAD_Quiet = 0x2000,
	LOAD_FindIfFail = 0x4000
};

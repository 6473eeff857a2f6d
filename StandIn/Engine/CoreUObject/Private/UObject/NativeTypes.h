// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/Class.h"
#include "UObject/Package.h"

// The types that binaries compiled in. A type is awake while the object system runs and its module is loaded: in the object
// array, rooted, with a default object. Otherwise it sleeps: the generated code's pointers to it stay valid, nothing finds it.
// It is deleted when its binary is unmapped.

namespace StandInPrivate
{
/** Takes a type (or a module's package) in under its package's name; awake at once if the object system runs. */
void AddNativeType(UObject* Type, const FString& PackageName, const FString& Name);
/** Says whether a type is awake. */
bool IsAwake(const UObject* Type);
/** The sleeping or awake package of a name that a binary compiled in, or null. */
UPackage* FindNativePackage(const FString& PackageName);
/** The package of a name that a binary compiled in, made if there is none. */
UPackage* FindOrAddNativePackage(const FString& PackageName);
/** All awake classes in the order of their registration. */
TArray<UClass*> GetAwakeClasses();

/** Wakes all types; for the start of the object system. */
void WakeAllNativeTypes();
/** Puts all types to sleep; their objects must be gone. */
void SleepAllNativeTypes();
/** Wakes the types of a package that sleep; returns them. */
TArray<UObject*> WakeNativeTypes(const FString& PackageName);
/** Destroys the objects of a package's classes and puts its types to sleep. */
void DropNativeTypes(const FString& PackageName);

/** Deletes the types of a package whose binary goes away; they must be asleep. */
void DeleteNativeTypes(const FString& PackageName);

/** Constructs all types that were queued and returns their classes. */
TArray<UClass*> ConstructQueuedTypes();
/** Fatal when a parent of a class sleeps. */
void CheckParentsAreAwake(const UClass* Class);

/** Notes that the process is about to end, so that registrations that are destroyed from then on leave everything alone. */
void NoteProcessExit();
}

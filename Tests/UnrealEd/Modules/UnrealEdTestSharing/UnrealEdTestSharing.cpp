// Copyright The Tintmill authors. All rights reserved.

#include "Editor.h"
#include "Modules/ModuleManager.h"
#include "UObject/UObjectGlobals.h"

// A module that tells what it sees of the editor's state, for the test that there is one of each in the process.

extern "C" DLLEXPORT const void* UnrealEdTestEditorVariable()
{
	return &GEditor;
}

extern "C" DLLEXPORT const void* UnrealEdTestPlayEvent()
{
	return &FEditorDelegates::PreBeginPIE;
}

extern "C" DLLEXPORT const void* UnrealEdTestTransientPackage()
{
	return GetTransientPackage();
}

IMPLEMENT_MODULE(FDefaultModuleImpl, UnrealEdTestSharing)

// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Forward declarations of the object classes that headers name most.

class UObjectBase;
class UObjectBaseUtility;
class UObject;
class UField;
class UEnum;
class UStruct;
class UScriptStruct;
class UFunction;
class UClass;
class UPackage;
class AActor;
class UActorComponent;
class UEngine;
class UGameViewportClient;
class ULevel;
class UTexture;
class UTexture2D;
class UWorld;

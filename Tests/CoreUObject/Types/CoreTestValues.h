// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "CoreTestValues.generated.h"

UENUM()
enum class ECoreTestKind : uint8
{
	One,
	Two = 5,
	Three
};

USTRUCT()
struct FCoreTestInner
{
	GENERATED_BODY()

	UPROPERTY()
	bool bOn = false;

	UPROPERTY()
	float Amount = 1.0f;

	UPROPERTY()
	UObject* Thing = nullptr;
};

/** One field of each kind. */
USTRUCT()
struct FCoreTestValues
{
	GENERATED_BODY()

	UPROPERTY()
	bool bFlag = false;

	UPROPERTY()
	uint8 bBitA : 1;

	UPROPERTY()
	uint8 bBitB : 1;

	UPROPERTY()
	int8 Int8 = 0;

	UPROPERTY()
	int16 Int16 = 0;

	UPROPERTY()
	int32 Int32 = 3;

	UPROPERTY()
	int64 Int64 = 0;

	UPROPERTY()
	uint8 Byte = 0;

	UPROPERTY()
	uint16 UInt16 = 0;

	UPROPERTY()
	uint32 UInt32 = 0;

	UPROPERTY()
	uint64 UInt64 = 0;

	UPROPERTY()
	float Float = 0.5f;

	UPROPERTY()
	double Double = 0.0;

	UPROPERTY()
	FName Name;

	UPROPERTY()
	FString String;

	UPROPERTY()
	FText Text;

	UPROPERTY()
	ECoreTestKind Kind = ECoreTestKind::One;

	UPROPERTY()
	UObject* Object = nullptr;

	UPROPERTY()
	TSubclassOf<UObject> Class;

	UPROPERTY()
	TWeakObjectPtr<UObject> Weak;

	UPROPERTY()
	FCoreTestInner Inner;

	UPROPERTY()
	TArray<int32> Numbers;

	UPROPERTY()
	TArray<FString> Strings;

	UPROPERTY()
	TArray<FCoreTestInner> Inners;

	UPROPERTY()
	int32 Fixed[2];

	UPROPERTY(Transient)
	int32 Passing = 0;

	FCoreTestValues()
	{
		bBitA = 0;
		bBitB = 0;
		Fixed[0] = 0;
		Fixed[1] = 0;
	}
};

USTRUCT()
struct FCoreTestDerivedValues : public FCoreTestInner
{
	GENERATED_BODY()

	UPROPERTY()
	int32 Own = 0;
};

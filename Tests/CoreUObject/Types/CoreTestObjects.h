// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "CoreTestValues.h"
#include "UObject/Object.h"
#include "CoreTestObjects.generated.h"

UCLASS()
class UCoreTestObject : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 Number = 7;

	UPROPERTY(Transient)
	int32 Passing = 0;

	UPROPERTY()
	UObject* Reference = nullptr;

	UPROPERTY()
	TArray<UObject*> References;

	UPROPERTY()
	FCoreTestInner Holder;

	UPROPERTY()
	TArray<FCoreTestInner> Holders;

	UPROPERTY()
	TWeakObjectPtr<UObject> Weak;

	/** A reference that only AddReferencedObjects knows. */
	UObject* Hidden = nullptr;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	virtual void BeginDestroy() override;
	virtual void FinishDestroy() override;
	virtual void PostInitProperties() override;

	/** What happened to objects of the class: letters B, F and D for begin, finish and destructor. */
	static FString Destructions;
	bool bPostInit = false;
	virtual ~UCoreTestObject();
};

UCLASS()
class UCoreTestChild : public UCoreTestObject
{
	GENERATED_UCLASS_BODY()

	UPROPERTY()
	UObject* Subobject;
};

UCLASS(abstract)
class UCoreTestAbstract : public UObject
{
	GENERATED_BODY()
};

/** Lives in a UCoreTestObject only. */
UCLASS(within = UCoreTestObject)
class UCoreTestInside : public UObject
{
	GENERATED_BODY()
};

UCLASS()
class UCoreTestAsset : public UObject
{
	GENERATED_BODY()

public:
	FString LoadedFrom;
	bool bPostLoaded = false;
	virtual void PostLoad() override;
};

/** Makes an object without name inside of its constructor, which is not allowed. */
UCLASS()
class UCoreTestCareless : public UObject
{
	GENERATED_BODY()

public:
	UCoreTestCareless();
	static bool bCareless;
};

/** Sets little in its constructor and counts on the rest being zero. */
UCLASS()
class UCoreTestSparing : public UObject
{
	GENERATED_BODY()

public:
	UCoreTestSparing();

	UPROPERTY()
	int32 Untouched;

	UPROPERTY()
	uint8 bSet : 1;

	UPROPERTY()
	uint8 bUntouched : 1;

	/** What the constructor found in Untouched. */
	int32 Found;

	/** What the constructor found in all bits around bSet. */
	bool bFoundBit;

	int32 Unreflected[16];

	/** Zeroes 8 bytes and constructs something there that reads what it does not set; returns what it made of the zero. */
	static int32 ConstructInMemoryZeroedOnTheSpot(void* Memory, int32& OutUntouched);
};

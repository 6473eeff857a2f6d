// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Kinds.generated.h"

UENUM()
enum class EKind : uint8
{
	One,
	Two = 5,
};

UENUM(BlueprintType)
enum EOldKind
{
	OK_First UMETA(DisplayName = "The first"),
	OK_Second,
};

USTRUCT()
struct FPlain
{
	GENERATED_USTRUCT_BODY()

	UPROPERTY()
	float Number = 1.0f;
};

USTRUCT(BlueprintType)
struct SAMPLE_API FDerived : public FPlain
{
	GENERATED_BODY()

private:
	UPROPERTY()
	FString Hidden{TEXT("a;b}")};
};

UCLASS()
class SAMPLE_API UEveryKind : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	bool bFlag = false;
	UPROPERTY()
	uint8 bBit : 1;
	UPROPERTY()
	int8 Int8;
	UPROPERTY()
	int16 Int16;
	UPROPERTY()
	int32 Int32;
	UPROPERTY()
	int64 Int64;
	UPROPERTY()
	uint8 Byte;
	UPROPERTY()
	uint16 UInt16;
	UPROPERTY()
	uint32 UInt32;
	UPROPERTY()
	uint64 UInt64;
	UPROPERTY()
	float Float;
	UPROPERTY()
	double Double;
	UPROPERTY()
	FName Name;
	UPROPERTY()
	FString String;
	UPROPERTY()
	FText Text;
	UPROPERTY()
	EKind Enum;
	UPROPERTY()
	TEnumAsByte<EOldKind> OldEnum;
	UPROPERTY()
	struct FPlain Struct;
	UPROPERTY()
	class UEveryKind* Object;
	UPROPERTY()
	UClass* AnyClass;
	UPROPERTY()
	TSubclassOf<UEveryKind> Class;
	UPROPERTY()
	TWeakObjectPtr<UEveryKind> Weak;
	UPROPERTY()
	int32 Fixed[3];
	UPROPERTY()
	TArray<bool> Bools;
	UPROPERTY()
	TArray<EKind> Enums;
	UPROPERTY()
	TArray<FPlain> Structs;
	UPROPERTY()
	TArray<UEveryKind*> Objects;
	UPROPERTY()
	TArray<TSubclassOf<UEveryKind>> Classes;
};

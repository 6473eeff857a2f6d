// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Factory.h"
#include "UObject/Object.h"
#include "Bodies.generated.h"

class UUnreflected;
template <typename T> struct TUnreflected { T Value; };

UCLASS(minimalapi, abstract, config = Engine, defaultconfig, meta = (ShortToolTip = "Short"))
class UMinimal : public UObject
{
	GENERATED_BODY()

public:
	UMinimal();
	virtual ~UMinimal() override {}

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Sample|More", meta = (ClampMin = "0", UIMax = 2))
	float Shown;

#if WITH_EDITORONLY_DATA
	UPROPERTY(VisibleAnywhere, Category = Sample, Transient)
	FString EditorText;

private:
	UPROPERTY()
	int32 EditorNumber;
#endif

#if WITH_EDITOR
	void OnlyInTheEditor();
#endif
#if defined(SOMETHING_ELSE)
	void Never(;
#endif
};

UCLASS(hidecategories = (Object, "A|B"), notplaceable)
class UWithInitializer
	: public UMinimal
{
	GENERATED_BODY()

public:
	explicit UWithInitializer(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};

UCLASS(within = UMinimal, hidecategories = Object, config = inherit, Blueprintable)
class UInside final : public UWithInitializer, public TUnreflected<TUnreflected<int>>
{
	GENERATED_BODY()
};

UCLASS(
	Transient
)
class UAfterDefault : public UMinimal
{
	GENERATED_BODY()
};

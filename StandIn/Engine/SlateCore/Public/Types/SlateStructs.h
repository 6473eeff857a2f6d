// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

// Sizes of slots and boxes.

/** A size that may be left open. */
struct FOptionalSize
{
	/** Makes an open size. */
	FOptionalSize()
		: Size(-1.0f)
	{}

	/** Makes a set size, in Slate units. */
	FOptionalSize(const float SpecifiedSize)
		: Size(SpecifiedSize)
	{}

	/** Says whether the size is set. */
	bool IsSet() const { return Size >= 0.0f; }

	/** Returns the size; meaningful only when set. */
	float Get() const { return Size; }

private:
	float Size;
};

/** How a slot gets its size: by itself or as a share of what is left. */
struct FSizeParam
{
	/** The two rules. */
	enum ESizeRule
	{
		SizeRule_Auto,
		SizeRule_Stretch
	};

	/** The rule in force. */
	ESizeRule SizeRule;

	/** The share, for the stretch rule. */
	TAttribute<float> Value;

protected:
	FSizeParam(ESizeRule InTypeOfSize, const TAttribute<float>& InValue)
		: SizeRule(InTypeOfSize)
		, Value(InValue)
	{}
};

/** A slot that takes a share of the space left, by weight. */
struct FStretch : public FSizeParam
{
	/** Makes a share of the given weight. */
	FStretch(const TAttribute<float>& StretchAmount)
		: FSizeParam(SizeRule_Stretch, StretchAmount)
	{}

	/** Makes a share of weight one. */
	FStretch()
		: FSizeParam(SizeRule_Stretch, 1.0f)
	{}
};

/** A slot as large as its content wishes. */
struct FAuto : public FSizeParam
{
	/** Makes the rule. */
	FAuto()
		: FSizeParam(SizeRule_Auto, 0.0f)
	{}
};

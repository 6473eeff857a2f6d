// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Data attached to widgets, found again by type name.

#define SLATE_METADATA_TYPE(TYPE, BASE) \
	static const FName& GetTypeId() \
	{ \
		static FName Type(TEXT(#TYPE)); \
		return Type; \
	} \
	virtual bool IsOfTypeImpl(const FName& Type) const override \
	{ \
		return GetTypeId() == Type || BASE::IsOfTypeImpl(Type); \
	}

/** A piece of data attached to a widget. */
class ISlateMetaData
{
public:
	/** Destroys the data. */
	virtual ~ISlateMetaData() {}

	/** Says whether this is, or derives from, the given type. */
	template <class TType>
	bool IsOfType() const
	{
		return IsOfTypeImpl(TType::GetTypeId());
	}

protected:
	/** Says whether this is of the type of the given name. */
	virtual bool IsOfTypeImpl(const FName& /*Type*/) const { return false; }
};

/** A name attached to a widget. */
class FTagMetaData : public ISlateMetaData
{
public:
	SLATE_METADATA_TYPE(FTagMetaData, ISlateMetaData)

	/** Makes the data of the given name. */
	FTagMetaData(FName InTag)
		: Tag(InTag)
	{}

	/** The name. */
	FName Tag;
};

// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "JsonReader.h"
#include "PluginReferenceDescriptor.h"

// Takes the fields of a descriptor out of JSON; a field that is there must be of its type.

namespace StandInPrivate
{
/** Takes fields of one object; the first wrong one is remembered as the error. */
class FJsonFields
{
public:
	FJsonFields(const FJsonValue& InObject, FJsonError& InError)
		: Object(InObject)
		, Error(InError)
	{}

	/** Each takes a field if it is there; false once any field was wrong. */
	bool Take(const TCHAR* Name, FString& Out);
	bool Take(const TCHAR* Name, int32& Out);
	bool Take(const TCHAR* Name, bool& bOut);
	bool Take(const TCHAR* Name, TArray<FString>& Out);

	/** The elements of a list of objects; null when the field is missing or wrong. */
	const FJsonValue* TakeObjects(const TCHAR* Name);

	/** Says whether the object has a field. */
	bool Has(const TCHAR* Name) const { return Object.FindField(Name) != nullptr; }

	/** Remembers an error at a field, or at the object when it has no such field; returns false. */
	bool Fail(const TCHAR* Name, const FString& Text);

	/** Says whether no field was wrong so far. */
	bool IsGood() const { return Error.Line == 0; }

private:
	const FJsonValue* Find(const TCHAR* Name, FJsonValue::EType Type, const TCHAR* Wanted);

	const FJsonValue& Object;
	FJsonError& Error;
};

/** Takes the "Plugins" list of a descriptor. */
bool TakePluginReferences(FJsonFields& Fields, FJsonError& Error, TArray<FPluginReferenceDescriptor>& Out);
}

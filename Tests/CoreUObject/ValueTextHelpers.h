// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTestValues.h"
#include "Misc/OutputDevice.h"
#include "Support/Text.h"
#include "UObject/UnrealType.h"

#include <string>
#include <vector>

/** Collects what reading complains about. */
class FErrorText : public FOutputDevice
{
public:
	using FOutputDevice::Serialize;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type, const FName&) override { Lines.push_back(ToStd(V)); }

	std::vector<std::string> Lines;
};

/** A struct value that is read from text and written as text. */
template <typename StructType>
struct TValueText
{
	StructType Value;
	FErrorText Errors;
	bool bRead = false;
	/** What was left behind the value. */
	std::string Rest;

	/** Reads `(A=…)` into a default value. */
	explicit TValueText(const std::string& Text)
	{
		const FString Buffer(UTF8_TO_TCHAR(Text.c_str()));
		const TCHAR* End =
			StructType::StaticStruct()->ImportText(*Buffer, &Value, nullptr, PPF_None, &Errors, StructType::StaticStruct()->GetName());
		bRead = End != nullptr;
		Rest = bRead ? ToStd(End) : "";
	}

	const StructType* operator->() const { return &Value; }
};

typedef TValueText<FCoreTestValues> FValuesText;

/** A value as text. */
template <typename StructType>
std::string ExportValue(const StructType& Value)
{
	FString Text;
	StructType::StaticStruct()->ExportText(Text, &Value, nullptr, nullptr, PPF_None, nullptr);
	return ToStd(Text);
}

/** Text of one field of a value. */
template <typename StructType>
std::string ExportField(const StructType& Value, const TCHAR* Field, int32 PortFlags = PPF_Delimited)
{
	FString Text;
	const FProperty* Property = StructType::StaticStruct()->FindPropertyByName(FName(Field));
	Property->ExportTextItem(Text, Property->ContainerPtrToValuePtr<void>(&Value), nullptr, nullptr, PortFlags);
	return ToStd(Text);
}

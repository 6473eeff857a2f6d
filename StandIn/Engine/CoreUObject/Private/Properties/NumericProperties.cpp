// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Properties/NumericProperties.h"
#include "Misc/CString.h"
#include "Properties/ImportProblems.h"
#include "Properties/ValueText.h"

#include <cmath>
#include <string>

IMPLEMENT_FIELD(FNumericProperty)

#define STANDIN_IMPLEMENT_NUMERIC_PROPERTY(TName, TCpp) \
	IMPLEMENT_FIELD(TName) \
	FString TName::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const \
	{ \
		(void)ExtendedTypeText; \
		(void)CPPExportFlags; \
		return FString(TEXT(#TCpp)); \
	}

STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FInt8Property, int8)
STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FInt16Property, int16)
STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FIntProperty, int32)
STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FInt64Property, int64)
STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FUInt16Property, uint16)
STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FUInt32Property, uint32)
STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FUInt64Property, uint64)
STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FFloatProperty, float)
STANDIN_IMPLEMENT_NUMERIC_PROPERTY(FDoubleProperty, double)

namespace StandInPrivate
{
namespace
{
bool IsDigit(TCHAR Char)
{
	return Char >= TEXT('0') && Char <= TEXT('9');
}

// Reads sign and digits; false when there are none. A number beyond 64 bits is marked as too large.
bool ReadWholeNumber(const TCHAR*& Text, bool& bOutNegative, uint64& OutMagnitude, bool& bOutTooLarge)
{
	const TCHAR* Cursor = SkipBlanks(Text);
	bOutNegative = *Cursor == TEXT('-');
	if (*Cursor == TEXT('-') || *Cursor == TEXT('+'))
	{
		++Cursor;
	}
	if (!IsDigit(*Cursor))
	{
		return false;
	}
	OutMagnitude = 0;
	bOutTooLarge = false;
	for (; IsDigit(*Cursor); ++Cursor)
	{
		const uint64 Digit = uint64(*Cursor - TEXT('0'));
		bOutTooLarge |= OutMagnitude > (std::numeric_limits<uint64>::max() - Digit) / 10;
		OutMagnitude = OutMagnitude * 10 + Digit;
	}
	Text = Cursor;
	return true;
}

const TCHAR* RefuseNumber(const FProperty* Property, const TCHAR* Buffer, const TCHAR* Reason, FOutputDevice* ErrorText)
{
	ReportImportProblem(ErrorText,
		FString::Printf(TEXT("%s=%s %s and was left at its default"), *Property->GetName(), *Excerpt(SkipBlanks(Buffer)), Reason));
	return nullptr;
}
}
}

void FNumericProperty::ExportInteger(FString& ValueStr, int64 Value)
{
	ValueStr += FString(std::to_string(Value).c_str());
}

void FNumericProperty::ExportUnsigned(FString& ValueStr, uint64 Value)
{
	ValueStr += FString(std::to_string(Value).c_str());
}

void FNumericProperty::ExportFloat(FString& ValueStr, double Value)
{
	ValueStr += FString::Printf(TEXT("%f"), Value);
}

const TCHAR* FNumericProperty::ImportInteger(const TCHAR* Buffer, int64 Min, int64 Max, int64& OutValue, FOutputDevice* ErrorText) const
{
	bool bNegative = false;
	bool bTooLarge = false;
	uint64 Magnitude = 0;
	const TCHAR* Rest = Buffer;
	if (!StandInPrivate::ReadWholeNumber(Rest, bNegative, Magnitude, bTooLarge))
	{
		return StandInPrivate::RefuseNumber(this, Buffer, TEXT("is not a number"), ErrorText);
	}
	const uint64 Limit = bNegative ? uint64(-(Min + 1)) + 1u : uint64(Max);
	if (bTooLarge || Magnitude > Limit)
	{
		return StandInPrivate::RefuseNumber(this, Buffer, TEXT("is out of range"), ErrorText);
	}
	OutValue = bNegative ? int64(~Magnitude + 1u) : int64(Magnitude);
	return Rest;
}

const TCHAR* FNumericProperty::ImportUnsigned(const TCHAR* Buffer, uint64 Max, uint64& OutValue, FOutputDevice* ErrorText) const
{
	bool bNegative = false;
	bool bTooLarge = false;
	uint64 Magnitude = 0;
	const TCHAR* Rest = Buffer;
	if (!StandInPrivate::ReadWholeNumber(Rest, bNegative, Magnitude, bTooLarge))
	{
		return StandInPrivate::RefuseNumber(this, Buffer, TEXT("is not a number"), ErrorText);
	}
	if (bTooLarge || Magnitude > Max || (bNegative && Magnitude != 0))
	{
		return StandInPrivate::RefuseNumber(this, Buffer, TEXT("is out of range"), ErrorText);
	}
	OutValue = Magnitude;
	return Rest;
}

const TCHAR* FNumericProperty::ImportFloat(const TCHAR* Buffer, double Max, double& OutValue, FOutputDevice* ErrorText) const
{
	const TCHAR* Start = StandInPrivate::SkipBlanks(Buffer);
	const TCHAR* Digits = *Start == TEXT('-') || *Start == TEXT('+') ? Start + 1 : Start;
	const bool bIsNumber = StandInPrivate::IsDigit(*Digits) || (*Digits == TEXT('.') && StandInPrivate::IsDigit(Digits[1]));
	if (!bIsNumber)
	{
		return StandInPrivate::RefuseNumber(this, Buffer, TEXT("is not a number"), ErrorText);
	}
	int32 Used = 0;
	const double Value = StandIn::ParseDouble(Start, &Used);
	if (!std::isfinite(Value) || std::fabs(Value) > Max)
	{
		return StandInPrivate::RefuseNumber(this, Buffer, TEXT("is out of range"), ErrorText);
	}
	OutValue = Value;
	const TCHAR* Rest = Start + Used;
	return *Rest == TEXT('f') || *Rest == TEXT('F') ? Rest + 1 : Rest;
}

// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Properties/TextProperties.h"
#include "Misc/CString.h"
#include "Properties/ImportProblems.h"
#include "Properties/ValueText.h"

IMPLEMENT_FIELD(FNameProperty)
IMPLEMENT_FIELD(FStrProperty)
IMPLEMENT_FIELD(FTextProperty)

#define STANDIN_TEXT_CPP_TYPE(TName, TCpp) \
	FString TName::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const \
	{ \
		(void)ExtendedTypeText; \
		(void)CPPExportFlags; \
		return FString(TEXT(#TCpp)); \
	}

STANDIN_TEXT_CPP_TYPE(FNameProperty, FName)
STANDIN_TEXT_CPP_TYPE(FStrProperty, FString)
STANDIN_TEXT_CPP_TYPE(FTextProperty, FText)

namespace StandInPrivate
{
namespace
{
void ReportOpenQuote(const FProperty* Property, FOutputDevice* ErrorText)
{
	ReportImportProblem(
		ErrorText, FString::Printf(TEXT("the quote of %s is not closed and it was left at its default"), *Property->GetName()));
}

// Reads a string: the whole text, or inside of a struct a quoted string or token. Null for a quote that stays open.
const TCHAR* ImportString(
	const FProperty* Property, const TCHAR* Buffer, int32 PortFlags, FString& OutString, bool bEscapes, FOutputDevice* ErrorText)
{
	if ((PortFlags & PPF_Delimited) == 0)
	{
		OutString = Buffer;
		return Buffer + FCString::Strlen(Buffer);
	}
	const TCHAR* Rest = SkipBlanks(Buffer);
	if (!ReadQuotedOrToken(Rest, OutString, bEscapes))
	{
		ReportOpenQuote(Property, ErrorText);
		return nullptr;
	}
	return Rest;
}

// Reads the quoted strings between parentheses.
bool ReadTextArguments(const TCHAR*& Text, FString* OutStrings, int32 Count)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Text = SkipBlanks(Text);
		if (*Text != TEXT('"') || !ReadQuoted(Text, OutStrings[Index], true))
		{
			return false;
		}
		Text = SkipBlanks(Text);
		if (*Text != (Index + 1 < Count ? TEXT(',') : TEXT(')')))
		{
			return false;
		}
		++Text;
	}
	return true;
}
}
}

void FNameProperty::LinkInternal()
{
	PropertyFlags |= CPF_ZeroConstructor | CPF_IsPlainOldData | CPF_NoDestructor | CPF_HasGetValueTypeHash;
}

bool FNameProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	(void)PortFlags;
	return GetPropertyValue(A) == (B != nullptr ? GetPropertyValue(B) : FName());
}

void FNameProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
	UObject* ExportRootScope) const
{
	(void)DefaultValue;
	(void)Parent;
	(void)ExportRootScope;
	const FString Name = GetPropertyValue(PropertyValue).ToString();
	ValueStr += (PortFlags & PPF_Delimited) != 0 ? FString::Printf(TEXT("\"%s\""), *Name) : Name;
}

const TCHAR* FNameProperty::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	(void)OwnerObject;
	FString Name;
	const TCHAR* Rest = StandInPrivate::ImportString(this, Buffer, PortFlags, Name, false, ErrorText);
	if (Rest != nullptr && Name.Len() >= NAME_SIZE)
	{
		StandInPrivate::ReportImportProblem(
			ErrorText, FString::Printf(TEXT("%s is longer than a name can be and was left at its default"), *GetName()));
		return nullptr;
	}
	if (Rest != nullptr)
	{
		SetPropertyValue(Data, FName(*Name));
	}
	return Rest;
}

void FStrProperty::LinkInternal()
{
	PropertyFlags |= CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

bool FStrProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	(void)PortFlags;
	return B != nullptr ? GetPropertyValue(A).Equals(GetPropertyValue(B)) : GetPropertyValue(A).Len() == 0;
}

void FStrProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
	UObject* ExportRootScope) const
{
	(void)DefaultValue;
	(void)Parent;
	(void)ExportRootScope;
	const FString& String = GetPropertyValue(PropertyValue);
	ValueStr += (PortFlags & PPF_Delimited) != 0 ? StandInPrivate::QuoteString(String) : String;
}

const TCHAR* FStrProperty::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	(void)OwnerObject;
	FString String;
	const TCHAR* Rest = StandInPrivate::ImportString(this, Buffer, PortFlags, String, true, ErrorText);
	if (Rest != nullptr)
	{
		SetPropertyValue(Data, String);
	}
	return Rest;
}

void FTextProperty::LinkInternal()
{
	// A text of zeroes is none, so it is neither plain data nor made by clearing memory.
}

bool FTextProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	(void)PortFlags;
	const FText& Left = GetPropertyValue(A);
	if (B == nullptr)
	{
		return Left.IsEmpty();
	}
	const FText& Right = GetPropertyValue(B);
	return Left.IdenticalTo(Right) || (Left.IsEmpty() && Right.IsEmpty())
		|| (!FTextInspector::GetKey(Left).IsSet() && !FTextInspector::GetKey(Right).IsSet() && Left.EqualTo(Right));
}

void FTextProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
	UObject* ExportRootScope) const
{
	(void)DefaultValue;
	(void)Parent;
	(void)ExportRootScope;
	const FText& Text = GetPropertyValue(PropertyValue);
	const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
	const TOptional<FString> Key = FTextInspector::GetKey(Text);
	if (Namespace.IsSet() && Key.IsSet())
	{
		ValueStr += FString::Printf(TEXT("NSLOCTEXT(%s, %s, %s)"), *StandInPrivate::QuoteString(Namespace.GetValue()),
			*StandInPrivate::QuoteString(Key.GetValue()), *StandInPrivate::QuoteString(Text.BuildSourceString()));
	}
	else if (Text.IsCultureInvariant() && !Text.IsEmpty())
	{
		ValueStr += FString::Printf(TEXT("INVTEXT(%s)"), *StandInPrivate::QuoteString(Text.ToString()));
	}
	else
	{
		ValueStr += (PortFlags & PPF_Delimited) != 0 ? StandInPrivate::QuoteString(Text.ToString()) : Text.ToString();
	}
}

const TCHAR* FTextProperty::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	(void)OwnerObject;
	const TCHAR* Rest = StandInPrivate::SkipBlanks(Buffer);
	FString Arguments[3];
	if (StandInPrivate::SkipWord(Rest, TEXT("NSLOCTEXT(")))
	{
		if (StandInPrivate::ReadTextArguments(Rest, Arguments, 3))
		{
			SetPropertyValue(Data, FText::MakeLocalizable(*Arguments[2], *Arguments[0], *Arguments[1]));
			return Rest;
		}
	}
	else if (StandInPrivate::SkipWord(Rest, TEXT("INVTEXT(")))
	{
		if (StandInPrivate::ReadTextArguments(Rest, Arguments, 1))
		{
			SetPropertyValue(Data, FText::AsCultureInvariant(Arguments[0]));
			return Rest;
		}
	}
	else
	{
		FString String;
		Rest = StandInPrivate::ImportString(this, Buffer, PortFlags, String, true, ErrorText);
		if (Rest != nullptr)
		{
			SetPropertyValue(Data, FText::FromString(String));
		}
		return Rest;
	}
	StandInPrivate::ReportImportProblem(ErrorText,
		FString::Printf(TEXT("%s=%s is not a text and was left at its default"), *GetName(),
			*StandInPrivate::Excerpt(StandInPrivate::SkipBlanks(Buffer))));
	return nullptr;
}

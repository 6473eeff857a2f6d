// Copyright The Tintmill authors. All rights reserved.

#include "JsonFields.h"

namespace StandInPrivate
{
const FJsonValue* FJsonFields::Find(const TCHAR* Name, FJsonValue::EType Type, const TCHAR* Wanted)
{
	const FJsonValue* const Field = Object.FindField(Name);
	if (!Field || !IsGood())
	{
		return nullptr;
	}
	if (Field->Type != Type)
	{
		Fail(Name, FString::Printf(TEXT("\"%s\" must be %s but is %s"), Name, Wanted, Field->Describe()));
		return nullptr;
	}
	return Field;
}

bool FJsonFields::Take(const TCHAR* Name, FString& Out)
{
	if (const FJsonValue* const Field = Find(Name, FJsonValue::EType::String, TEXT("a text in quotes")))
	{
		Out = Field->String;
	}
	return IsGood();
}

bool FJsonFields::Take(const TCHAR* Name, int32& Out)
{
	if (const FJsonValue* const Field = Find(Name, FJsonValue::EType::Number, TEXT("a whole number")))
	{
		const bool bInRange = Field->Number >= -2147483648.0 && Field->Number <= 2147483647.0;
		if (!bInRange || double(int32(Field->Number)) != Field->Number)
		{
			return Fail(Name, FString::Printf(TEXT("\"%s\" must be a whole number"), Name));
		}
		Out = int32(Field->Number);
	}
	return IsGood();
}

bool FJsonFields::Take(const TCHAR* Name, bool& bOut)
{
	if (const FJsonValue* const Field = Find(Name, FJsonValue::EType::Boolean, TEXT("true or false")))
	{
		bOut = Field->bBoolean;
	}
	return IsGood();
}

bool FJsonFields::Take(const TCHAR* Name, TArray<FString>& Out)
{
	const FJsonValue* const Field = Find(Name, FJsonValue::EType::Array, TEXT("a list of texts"));
	for (size_t Index = 0; Field && Index < Field->Elements.size(); ++Index)
	{
		if (Field->Elements[Index].Type != FJsonValue::EType::String)
		{
			return Fail(Name, FString::Printf(TEXT("\"%s\" must be a list of texts in quotes"), Name));
		}
		Out.Add(Field->Elements[Index].String);
	}
	return IsGood();
}

const FJsonValue* FJsonFields::TakeObjects(const TCHAR* Name)
{
	const FJsonValue* const Field = Find(Name, FJsonValue::EType::Array, TEXT("a list of objects"));
	for (size_t Index = 0; Field && Index < Field->Elements.size(); ++Index)
	{
		if (Field->Elements[Index].Type != FJsonValue::EType::Object)
		{
			Fail(Name, FString::Printf(TEXT("\"%s\" must be a list of objects"), Name));
			return nullptr;
		}
	}
	return Field;
}

bool FJsonFields::Fail(const TCHAR* Name, const FString& Text)
{
	if (IsGood())
	{
		const FJsonValue* const Field = Object.FindField(Name);
		Error.Line = Field ? Field->Line : Object.Line;
		Error.Text = Text;
	}
	return false;
}

bool TakePluginReferences(FJsonFields& Fields, FJsonError& Error, TArray<FPluginReferenceDescriptor>& Out)
{
	const FJsonValue* const List = Fields.TakeObjects(TEXT("Plugins"));
	for (size_t Index = 0; List && Index < List->Elements.size(); ++Index)
	{
		FJsonFields Entry(List->Elements[Index], Error);
		FPluginReferenceDescriptor Reference;
		Entry.Take(TEXT("Name"), Reference.Name);
		Entry.Take(TEXT("Enabled"), Reference.bEnabled);
		Entry.Take(TEXT("Optional"), Reference.bOptional);
		if (Entry.IsGood() && Reference.Name.IsEmpty())
		{
			Entry.Fail(TEXT("Name"), TEXT("an entry of \"Plugins\" has no \"Name\""));
		}
		if (!Entry.IsGood())
		{
			return false;
		}
		Out.Add(Reference);
	}
	return Fields.IsGood();
}
}

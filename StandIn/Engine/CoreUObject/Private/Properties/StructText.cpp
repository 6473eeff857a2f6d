// Copyright The Tintmill authors. All rights reserved.

#include "Properties/ImportProblems.h"
#include "Properties/ValueText.h"
#include "UObject/UnrealType.h"

// Structs as text: (A=1,B=(C="x")).

namespace StandInPrivate
{
namespace
{
// One field of a text that was met.
struct FMetField
{
	const FProperty* Property;
	int32 Index;
};

struct FStructReader
{
	const UScriptStruct* Struct;
	void* Value;
	UObject* OwnerObject;
	int32 PortFlags;
	FOutputDevice* ErrorText;
	TArray<FMetField> Met;

	// Reads the name and an index such as [2] and moves behind them.
	bool ReadName(const TCHAR*& Text, FString& OutName, int32& OutIndex) const
	{
		const TCHAR* Start = Text;
		while (*Text != 0 && *Text != TEXT('=') && *Text != TEXT('[') && *Text != TEXT('(') && *Text != TEXT(')') && *Text != TEXT(',')
			&& *Text != TEXT('"') && *Text > TEXT(' '))
		{
			++Text;
		}
		OutName = FString(int32(Text - Start), Start);
		OutIndex = 0;
		if (*Text == TEXT('[') || *Text == TEXT('('))
		{
			const TCHAR Close = *Text == TEXT('[') ? TEXT(']') : TEXT(')');
			const TCHAR* Cursor = Text + 1;
			int32 Index = 0;
			const TCHAR* Digits = Cursor;
			while (*Cursor >= TEXT('0') && *Cursor <= TEXT('9') && Cursor - Digits < 8)
			{
				Index = Index * 10 + int32(*Cursor++ - TEXT('0'));
			}
			if (Cursor == Digits || *Cursor != Close)
			{
				return false;
			}
			OutIndex = Index;
			Text = Cursor + 1;
		}
		return OutName.Len() > 0;
	}

	bool WasMet(const FProperty* Property, int32 Index) const
	{
		return Met.ContainsByPredicate([=](const FMetField& Field) { return Field.Property == Property && Field.Index == Index; });
	}

	// Reads one field; returns the text behind what was used, or null when the whole field has been dealt with.
	const TCHAR* ReadField(const TCHAR* Start)
	{
		const TCHAR* Text = Start;
		FString Name;
		int32 Index = 0;
		if (!ReadName(Text, Name, Index) || *(Text = SkipBlanks(Text)) != TEXT('='))
		{
			ReportImportProblem(ErrorText, ELogVerbosity::Warning,
				FString::Printf(TEXT("Missing '=' in default properties assignment: %s"), Start),
				FString::Printf(TEXT("\"%s\" is not a field with a value and was skipped"), *Excerpt(Start)));
			return nullptr;
		}
		Text = SkipBlanks(Text + 1);
		const FName FieldName = Name.Len() < NAME_SIZE ? FName(*Name, FNAME_Find) : FName();
		const FProperty* Property = FieldName.IsNone() ? nullptr : Struct->FindPropertyByName(FieldName);
		if (Property == nullptr || !Property->ShouldPort(uint32(PortFlags)))
		{
			ReportImportProblem(ErrorText, ELogVerbosity::Verbose,
				FString::Printf(TEXT("Unknown property in %s: %s"), *Struct->GetName(), Start),
				FString::Printf(TEXT("%s has no field %s and it was skipped"), *Struct->GetName(), *Excerpt(*Name)));
			return nullptr;
		}
		if (Index >= Property->ArrayDim)
		{
			ReportImportProblem(ErrorText, ELogVerbosity::Warning,
				FString::Printf(TEXT("Out of bound array default property (%i/%i)"), Index, Property->ArrayDim),
				FString::Printf(TEXT("%s has no element %d and it was skipped"), *Name, Index));
			return nullptr;
		}
		if (WasMet(Property, Index))
		{
			ReportImportProblem(ErrorText, ELogVerbosity::Warning, FString::Printf(TEXT("redundant data: %s"), Start),
				FString::Printf(TEXT("%s is there more than once and the first one counts"), *Name));
			return nullptr;
		}
		Met.Add(FMetField{Property, Index});
		return Property->ImportText(
			Text, Property->ContainerPtrToValuePtr<void>(Value, Index), PortFlags | PPF_Delimited, OwnerObject, ErrorText);
	}

	const TCHAR* Read(const TCHAR* Buffer, const FString& StructName)
	{
		const TCHAR* Text = SkipBlanks(Buffer);
		if (*Text != TEXT('('))
		{
			ReportImportProblem(ErrorText, ELogVerbosity::Error,
				FString::Printf(TEXT("%s: Missing opening parenthesis: %s"), *StructName, Buffer),
				FString::Printf(TEXT("the value of %s does not start with \"(\" and was left at its default"), *StructName));
			return nullptr;
		}
		Text = SkipBlanks(Text + 1);
		while (*Text != 0 && *Text != TEXT(')'))
		{
			if (*Text != TEXT(','))
			{
				const TCHAR* Rest = ReadField(Text);
				const TCHAR* End = SkipField(Text);
				if (Rest != nullptr)
				{
					// What was read may hold quotes that the field's end was not found by.
					Rest = SkipBlanks(Rest);
					End = SkipField(Rest);
					if (End != Rest)
					{
						ReportImportProblem(
							ErrorText, FString::Printf(TEXT("\"%s\" behind a value of %s was ignored"), *Excerpt(Rest), *StructName));
					}
				}
				Text = End;
			}
			if (*Text == TEXT(','))
			{
				Text = SkipBlanks(Text + 1);
			}
		}
		if (*Text != TEXT(')'))
		{
			ReportImportProblem(ErrorText, ELogVerbosity::Error,
				FString::Printf(TEXT("%s: Missing closing parenthesis: %s"), *StructName, Buffer),
				FString::Printf(TEXT("the closing \")\" of %s is missing; the fields before it were read"), *StructName));
			return nullptr;
		}
		return Text + 1;
	}
};
}
}

void UScriptStruct::ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags,
	UObject* ExportRootScope, bool bAllowNativeOverride) const
{
	(void)bAllowNativeOverride;
	bool bFirst = true;
	ValueStr += TEXT('(');
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim && It->ShouldPort(uint32(PortFlags)); ++Index)
		{
			FString Text;
			if (!It->ExportText_InContainer(Index, Text, Value, Defaults, OwnerObject, PortFlags | PPF_Delimited, ExportRootScope))
			{
				continue;
			}
			if (!bFirst)
			{
				ValueStr += TEXT(',');
			}
			bFirst = false;
			It->GetFName().AppendString(ValueStr);
			if (It->ArrayDim > 1)
			{
				ValueStr += FString::Printf(TEXT("[%d]"), Index);
			}
			ValueStr += TEXT('=');
			ValueStr += Text;
		}
	}
	ValueStr += TEXT(')');
}

const TCHAR* UScriptStruct::ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText,
	const FString& StructName, bool bAllowNativeOverride) const
{
	(void)bAllowNativeOverride;
	StandInPrivate::FStructReader Reader{this, Value, OwnerObject, PortFlags, ErrorText, TArray<StandInPrivate::FMetField>()};
	return Reader.Read(Buffer, StructName);
}

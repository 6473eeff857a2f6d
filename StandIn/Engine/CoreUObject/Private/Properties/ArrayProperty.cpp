// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Properties/ArrayProperty.h"
#include "HAL/UnrealMemory.h"
#include "Properties/ImportProblems.h"
#include "Properties/ValueText.h"

IMPLEMENT_FIELD(FArrayProperty)

FArrayProperty::FArrayProperty(
	FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags)
	: FProperty(InOwner, InName, InObjectFlags, StaticClass(), InOffset, InFlags, int32(sizeof(FScriptArray)))
	, Inner(nullptr)
{}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

void FArrayProperty::AddCppProperty(FProperty* Property)
{
	check(Inner == nullptr);
	Inner = Property;
}

int32 FArrayProperty::GetMinAlignment() const
{
	return int32(alignof(FScriptArray));
}

void FArrayProperty::LinkInternal()
{
	check(Inner != nullptr);
	Inner->LinkInternal();
	PropertyFlags |= CPF_ZeroConstructor;
}

FString FArrayProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (ExtendedTypeText != nullptr)
	{
		FString InnerExtended;
		FString InnerType = Inner->GetCPPType(&InnerExtended, CPPExportFlags);
		*ExtendedTypeText = FString::Printf(TEXT("<%s%s>"), *InnerType, *InnerExtended);
	}
	return FString(TEXT("TArray"));
}

bool FArrayProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && Inner->SameType(((const FArrayProperty*)Other)->Inner);
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	FScriptArrayHelper Left(this, A);
	if (B == nullptr)
	{
		return Left.Num() == 0;
	}
	FScriptArrayHelper Right(this, B);
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Left.Num(); ++Index)
	{
		if (!Inner->Identical(Left.GetRawPtr(Index), Right.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FArrayProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	(void)DefaultValue;
	FScriptArrayHelper Helper(this, PropertyValue);
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		ValueStr += Index == 0 ? TEXT('(') : TEXT(',');
		Inner->ExportTextItem(ValueStr, Helper.GetRawPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	}
	if (Helper.Num() > 0)
	{
		ValueStr += TEXT(')');
	}
}

const TCHAR* FArrayProperty::ImportText_Internal(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FScriptArrayHelper Helper(this, Data);
	const TCHAR* Text = StandInPrivate::SkipBlanks(Buffer);
	if (*Text == 0 || *Text == TEXT(',') || *Text == TEXT(')'))
	{
		Helper.EmptyValues();
		return Text;
	}
	if (*Text != TEXT('('))
	{
		StandInPrivate::ReportImportProblem(ErrorText,
			FString::Printf(
				TEXT("%s=%s is not a list in parentheses and was left at its default"), *GetName(), *StandInPrivate::Excerpt(Text)));
		return nullptr;
	}
	Helper.EmptyValues();
	Text = StandInPrivate::SkipBlanks(Text + 1);
	bool bMore = *Text != TEXT(')');
	while (bMore)
	{
		const int32 Index = Helper.AddValue();
		Text = StandInPrivate::SkipBlanks(Text);
		if (*Text != TEXT(',') && *Text != TEXT(')') && *Text != 0)
		{
			const TCHAR* Rest = Inner->ImportText(Text, Helper.GetRawPtr(Index), PortFlags | PPF_Delimited, OwnerObject, ErrorText);
			const TCHAR* Behind = StandInPrivate::SkipBlanks(Rest != nullptr ? Rest : Text);
			Text = StandInPrivate::SkipField(Behind);
			if (Rest != nullptr && Text != Behind)
			{
				StandInPrivate::ReportImportProblem(ErrorText,
					FString::Printf(TEXT("\"%s\" behind an element of %s was ignored"), *StandInPrivate::Excerpt(Behind), *GetName()));
			}
		}
		bMore = *Text == TEXT(',');
		Text += bMore ? 1 : 0;
	}
	if (*Text != TEXT(')'))
	{
		StandInPrivate::ReportImportProblem(
			ErrorText, FString::Printf(TEXT("the closing \")\" of %s is missing; the elements before it were read"), *GetName()));
		return nullptr;
	}
	return Text + 1;
}

void FArrayProperty::CopyElement(void* Dest, void const* Src) const
{
	if (Dest == Src)
	{
		return;
	}
	FScriptArrayHelper From(this, Src);
	FScriptArrayHelper To(this, Dest);
	To.EmptyAndAddValues(From.Num());
	for (int32 Index = 0; Index < From.Num(); ++Index)
	{
		Inner->CopySingleValue(To.GetRawPtr(Index), From.GetRawPtr(Index));
	}
}

void FArrayProperty::InitializeElement(void* Dest) const
{
	FMemory::Memzero(Dest, sizeof(FScriptArray));
}

void FArrayProperty::DestroyElement(void* Dest) const
{
	FScriptArrayHelper(this, Dest).EmptyValues();
}

FScriptArrayHelper::FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
	: InnerProperty(InProperty->Inner)
	, Array((FScriptArray*)InArray)
	, ElementSize(InProperty->Inner->ElementSize)
{}

int32 FScriptArrayHelper::Num() const
{
	return Array->Num();
}

uint8* FScriptArrayHelper::GetRawPtr(int32 Index)
{
	if (Num() == 0)
	{
		check(Index == 0);
		return nullptr;
	}
	check(IsValidIndex(Index));
	return (uint8*)Array->GetData() + SIZE_T(Index) * SIZE_T(ElementSize);
}

int32 FScriptArrayHelper::AddValues(int32 Count)
{
	check(Count >= 0);
	const int32 First = Array->Add(Count, ElementSize);
	for (int32 Index = First; Index < First + Count; ++Index)
	{
		uint8* Element = GetRawPtr(Index);
		FMemory::Memzero(Element, SIZE_T(ElementSize));
		InnerProperty->InitializeValue(Element);
	}
	return First;
}

void FScriptArrayHelper::EmptyValues(int32 Slack)
{
	for (int32 Index = 0; Index < Num(); ++Index)
	{
		InnerProperty->DestroyValue(GetRawPtr(Index));
	}
	Array->Empty(Slack, ElementSize);
}

void FScriptArrayHelper::EmptyAndAddValues(int32 Count)
{
	EmptyValues(Count);
	AddValues(Count);
}

void FScriptArrayHelper::RemoveValues(int32 Index, int32 Count)
{
	check(Count >= 0 && Index >= 0 && Index + Count <= Num());
	for (int32 Offset = 0; Offset < Count; ++Offset)
	{
		InnerProperty->DestroyValue(GetRawPtr(Index + Offset));
	}
	Array->Remove(Index, Count, ElementSize);
}

void FScriptArrayHelper::Resize(int32 Count)
{
	check(Count >= 0);
	const int32 OldNum = Num();
	if (Count > OldNum)
	{
		AddValues(Count - OldNum);
	}
	else
	{
		RemoveValues(Count, OldNum - Count);
	}
}

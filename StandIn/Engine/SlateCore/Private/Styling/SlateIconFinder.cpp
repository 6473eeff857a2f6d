// Copyright The Tintmill authors. All rights reserved.

#include "Styling/SlateIconFinder.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "UObject/Class.h"

FSlateIcon FSlateIconFinder::FindIconForClass(const UClass* InClass, const FName& InDefaultName)
{
	return FindCustomIconForClass(InClass, TEXT("ClassIcon"), InDefaultName);
}

FSlateIcon FSlateIconFinder::FindCustomIconForClass(const UClass* InClass, const TCHAR* StyleBasePath, const FName& InDefaultName)
{
	for (const UClass* CurrentClass = InClass; CurrentClass != nullptr; CurrentClass = CurrentClass->GetSuperClass())
	{
		// A class object's name has no U or A in front.
		const FSlateIcon Icon = FindIcon(FName(*FString::Printf(TEXT("%s.%s"), StyleBasePath, *CurrentClass->GetName())));
		if (Icon.IsSet())
		{
			return Icon;
		}
	}
	return InDefaultName.IsNone() ? FSlateIcon() : FindIcon(InDefaultName);
}

const FSlateBrush* FSlateIconFinder::FindIconBrushForClass(const UClass* InClass, const FName& InDefaultName)
{
	return FindCustomIconBrushForClass(InClass, TEXT("ClassIcon"), InDefaultName);
}

const FSlateBrush* FSlateIconFinder::FindCustomIconBrushForClass(
	const UClass* InClass, const TCHAR* StyleBasePath, const FName& InDefaultName)
{
	const FSlateIcon Icon = FindCustomIconForClass(InClass, StyleBasePath, InDefaultName);
	return Icon.IsSet() ? Icon.GetIcon() : nullptr;
}

FSlateIcon FSlateIconFinder::FindIcon(const FName& InIconName)
{
	FSlateIcon Icon;
	FSlateStyleRegistry::IterateAllStyles([&Icon, &InIconName](const ISlateStyle& Style) {
		if (Style.GetOptionalBrush(InIconName, nullptr, nullptr) != nullptr)
		{
			Icon = FSlateIcon(Style.GetStyleSetName(), InIconName);
			return false;
		}
		return true;
	});
	return Icon;
}

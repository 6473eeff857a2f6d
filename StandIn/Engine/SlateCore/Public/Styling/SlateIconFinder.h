// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Textures/SlateIcon.h"

class UClass;
struct FSlateBrush;

// Icons of classes, looked up in all registered style sets. Left out: looking up by struct, package icons.

/** Finds icons of classes in all registered style sets. */
class SLATECORE_API FSlateIconFinder
{
public:
	/** Finds "ClassIcon.Name" for a class or the nearest super class that has one, else the default name's icon. */
	static FSlateIcon FindIconForClass(const UClass* InClass, const FName& InDefaultName = FName());

	/** Finds "StyleBasePath.Name" for a class or the nearest super class that has one, else the default name's icon. */
	static FSlateIcon FindCustomIconForClass(const UClass* InClass, const TCHAR* StyleBasePath, const FName& InDefaultName = FName());

	/** Finds the brush of FindIconForClass; null if there is none. */
	static const FSlateBrush* FindIconBrushForClass(const UClass* InClass, const FName& InDefaultName = FName());

	/** Finds the brush of FindCustomIconForClass; null if there is none. */
	static const FSlateBrush* FindCustomIconBrushForClass(
		const UClass* InClass, const TCHAR* StyleBasePath, const FName& InDefaultName = FName());

	/** Finds an icon by the name of a brush in any registered style set. */
	static FSlateIcon FindIcon(const FName& InIconName);
};

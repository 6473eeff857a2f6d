// Copyright The Tintmill authors. All rights reserved.

#include "Styling/SlateStyleRegistry.h"
#include "Application/SlateApplicationBase.h"
#include "StandIn/Registrations.h"
#include "Styling/ISlateStyle.h"

namespace
{
/** The sets by name, in the order of registration. */
struct FStyleRepository
{
	TArray<const ISlateStyle*> Styles;

	FStyleRepository()
	{
		StandIn::AddRegistry(TEXT("SlateStyle"), [this](TArray<StandIn::FRegistration>& OutRegistrations) {
			for (int32 Index = 0; Index < Styles.Num(); ++Index)
			{
				StandIn::FRegistration Registration;
				Registration.Registry = TEXT("SlateStyle");
				Registration.Name = Styles[Index]->GetStyleSetName().ToString();
				Registration.Owner = Styles[Index];
				OutRegistrations.Add(Registration);
			}
		});
	}
};

FStyleRepository& GetStyleRepository()
{
	// Lives to the end of the process: the registry of registries keeps a pointer to it.
	static FStyleRepository* Repository = new FStyleRepository();
	return *Repository;
}
}

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const ISlateStyle* ExistingStyle = FindSlateStyle(InSlateStyle.GetStyleSetName());
	checkf(ExistingStyle == nullptr, TEXT("A style set named '%s' is already registered."), *InSlateStyle.GetStyleSetName().ToString());
	GetStyleRepository().Styles.Add(&InSlateStyle);
	if (FSlateApplicationBase::IsInitialized())
	{
		FSlateApplicationBase::Get().GetRenderer()->LoadStyleResources(InSlateStyle);
	}
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	UnRegisterSlateStyle(InSlateStyle.GetStyleSetName());
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const FName StyleSetName)
{
	TArray<const ISlateStyle*>& Styles = GetStyleRepository().Styles;
	for (int32 Index = 0; Index < Styles.Num(); ++Index)
	{
		if (Styles[Index]->GetStyleSetName() == StyleSetName)
		{
			Styles.RemoveAt(Index);
			return;
		}
	}
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	const TArray<const ISlateStyle*>& Styles = GetStyleRepository().Styles;
	for (int32 Index = 0; Index < Styles.Num(); ++Index)
	{
		if (Styles[Index]->GetStyleSetName() == InSlateStyleName)
		{
			return Styles[Index];
		}
	}
	return nullptr;
}

bool FSlateStyleRegistry::IterateAllStyles(const TFunction<bool(const ISlateStyle&)>& Iter)
{
	const TArray<const ISlateStyle*> Styles = GetStyleRepository().Styles;
	for (int32 Index = 0; Index < Styles.Num(); ++Index)
	{
		if (!Iter(*Styles[Index]))
		{
			return false;
		}
	}
	return true;
}

void FSlateStyleRegistry::GetAllResources(TArray<const FSlateBrush*>& OutResources)
{
	const TArray<const ISlateStyle*>& Styles = GetStyleRepository().Styles;
	for (int32 Index = 0; Index < Styles.Num(); ++Index)
	{
		Styles[Index]->GetResources(OutResources);
	}
}

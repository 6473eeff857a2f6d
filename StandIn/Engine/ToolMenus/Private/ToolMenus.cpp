// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"
#include "Containers/Ticker.h"
#include "Framework/Application/SlateApplication.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "StandIn/Registrations.h"
#include "UObject/Package.h"

DEFINE_LOG_CATEGORY(LogToolMenus);

namespace ToolMenusPrivate
{
TWeakObjectPtr<UToolMenus>& Singleton()
{
	static TWeakObjectPtr<UToolMenus> Instance;
	return Instance;
}

FSimpleMulticastDelegate& StartupCallbacks()
{
	static FSimpleMulticastDelegate Callbacks;
	return Callbacks;
}

FDelegateHandle& PostEngineInitHandle()
{
	static FDelegateHandle Handle;
	return Handle;
}
}

UToolMenus::UToolMenus() {}

UToolMenus* UToolMenus::Get()
{
	TWeakObjectPtr<UToolMenus>& Singleton = ToolMenusPrivate::Singleton();
	if (!Singleton.IsValid())
	{
		FModuleManager::Get().LoadModuleChecked(TEXT("ToolMenus"));
		UToolMenus* Manager = NewObject<UToolMenus>();
		Manager->AddToRoot();
		Singleton = Manager;
	}
	return Singleton.Get();
}

UToolMenus* UToolMenus::TryGet()
{
	return UObjectInitialized() && FModuleManager::Get().IsModuleLoaded(TEXT("ToolMenus")) ? Get() : nullptr;
}

void UToolMenus::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UToolMenus* This = CastChecked<UToolMenus>(InThis);
	for (TPair<FName, UToolMenu*>& Pair : This->Menus)
	{
		Collector.AddReferencedObject(Pair.Value);
	}
	This->LiveMenus.RemoveAll([](const FLiveMenu& LiveMenu) { return !LiveMenu.MultiBox.IsValid(); });
	for (FLiveMenu& LiveMenu : This->LiveMenus)
	{
		Collector.AddReferencedObject(LiveMenu.Menu);
		for (UObject*& Object : LiveMenu.Menu->Context.ContextObjects)
		{
			Collector.AddReferencedObject(Object);
		}
	}
	Super::AddReferencedObjects(InThis, Collector);
}

void UToolMenus::BeginDestroy()
{
	if (RefreshTickHandle.IsValid())
	{
		FTicker::GetCoreTicker().RemoveTicker(RefreshTickHandle);
		RefreshTickHandle.Reset();
	}
	Super::BeginDestroy();
}

void UToolMenus::UnregisterOwner(FToolMenuOwner Owner)
{
	UToolMenus* Manager = TryGet();
	if (!Manager || !Owner.IsSet())
	{
		return;
	}
	for (const TPair<FName, UToolMenu*>& Pair : Manager->Menus)
	{
		TArray<FToolMenuSection>& Sections = Pair.Value->Sections;
		for (int32 Index = Sections.Num() - 1; Index >= 0; --Index)
		{
			FToolMenuSection& Section = Sections[Index];
			Section.Blocks.RemoveAll([&Owner](const FToolMenuEntry& Entry) { return Entry.Owner == Owner; });
			if (Section.Owner == Owner)
			{
				Section.Construct = FNewSectionConstructChoice();
				if (Section.Blocks.Num() == 0)
				{
					Sections.RemoveAt(Index);
				}
			}
		}
	}
	Manager->RefreshAllWidgets();
}

void UToolMenus::UnregisterOwnerByName(FName InOwnerName)
{
	UnregisterOwner(InOwnerName);
}

bool UToolMenus::IsToolMenuUIEnabled()
{
	return FSlateApplication::IsInitialized() && GIsEditor && !IsRunningCommandlet();
}

FDelegateHandle UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	if (IsToolMenuUIEnabled() && TryGet())
	{
		InDelegate.Execute();
		return FDelegateHandle();
	}
	FDelegateHandle& Handle = ToolMenusPrivate::PostEngineInitHandle();
	if (!Handle.IsValid())
	{
		Handle = FCoreDelegates::OnPostEngineInit.AddStatic(&UToolMenus::RunStartupCallbacks);
	}
	return ToolMenusPrivate::StartupCallbacks().Add(InDelegate);
}

void UToolMenus::RunStartupCallbacks()
{
	FDelegateHandle& Handle = ToolMenusPrivate::PostEngineInitHandle();
	FCoreDelegates::OnPostEngineInit.Remove(Handle);
	Handle.Reset();
	if (IsToolMenuUIEnabled())
	{
		Get();
		ToolMenusPrivate::StartupCallbacks().Broadcast();
		ToolMenusPrivate::StartupCallbacks().Clear();
	}
}

void UToolMenus::UnRegisterStartupCallback(const void* UserPointer)
{
	ToolMenusPrivate::StartupCallbacks().RemoveAll(UserPointer);
}

void UToolMenus::UnRegisterStartupCallback(FDelegateHandle InHandle)
{
	ToolMenusPrivate::StartupCallbacks().Remove(InHandle);
}

UToolMenu* UToolMenus::NewToolMenuObject(const FName InMenuName, const FToolMenuContext& InContext)
{
	UToolMenu* Menu = NewObject<UToolMenu>(GetTransientPackage());
	Menu->MenuName = InMenuName;
	Menu->Context = InContext;
	return Menu;
}

UToolMenu* UToolMenus::RegisterMenu(FName Name, const FName Parent, EMultiBoxType Type, bool bWarnIfAlreadyRegistered)
{
	UToolMenu* Menu = FindMenu(Name);
	if (Menu && Menu->IsRegistered())
	{
		if (bWarnIfAlreadyRegistered)
		{
			UE_LOG(LogToolMenus, Warning, TEXT("Menu already registered : %s"), *Name.ToString());
		}
		return Menu;
	}
	if (!Menu)
	{
		Menu = NewToolMenuObject(Name, FToolMenuContext());
		Menus.Add(Name, Menu);
	}
	Menu->bRegistered = true;
	Menu->SetRegistering(true);
	Menu->MenuParent = Parent;
	Menu->MenuType = Type;
	Menu->MenuOwner = CurrentOwner();
	return Menu;
}

UToolMenu* UToolMenus::ExtendMenu(const FName Name)
{
	RefreshAllWidgets();
	UToolMenu* Menu = FindMenu(Name);
	if (!Menu)
	{
		Menu = NewToolMenuObject(Name, FToolMenuContext());
		Menus.Add(Name, Menu);
	}
	Menu->SetRegistering(false);
	return Menu;
}

UToolMenu* UToolMenus::FindMenu(const FName Name)
{
	UToolMenu** Found = Menus.Find(Name);
	return Found ? *Found : nullptr;
}

bool UToolMenus::IsMenuRegistered(const FName Name) const
{
	UToolMenu* const* Found = Menus.Find(Name);
	return Found && (*Found)->IsRegistered();
}

void UToolMenus::RemoveMenu(const FName MenuName)
{
	Menus.Remove(MenuName);
}

void UToolMenus::AddSection(const FName MenuName, const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
{
	ExtendMenu(MenuName)->AddSection(SectionName, InLabel, InPosition);
}

void UToolMenus::RemoveSection(const FName MenuName, const FName Section)
{
	if (UToolMenu* Menu = FindMenu(MenuName))
	{
		Menu->RemoveSection(Section);
	}
}

void UToolMenus::AddEntry(const FName MenuName, const FName SectionName, const FToolMenuEntry& Entry)
{
	ExtendMenu(MenuName)->FindOrAddSection(SectionName).AddEntry(Entry);
}

void UToolMenus::RemoveEntry(const FName MenuName, const FName Section, const FName Name)
{
	UToolMenu* Menu = FindMenu(MenuName);
	if (FToolMenuSection* Found = Menu ? Menu->FindSection(Section) : nullptr)
	{
		Found->Blocks.RemoveAll([Name](const FToolMenuEntry& Entry) { return Entry.Name == Name; });
	}
}

void UToolMenus::SetSectionLabel(const FName MenuName, const FName SectionName, const TAttribute<FText>& InLabel)
{
	ExtendMenu(MenuName)->FindOrAddSection(SectionName).Label = InLabel;
}

void UToolMenus::SetSectionPosition(const FName MenuName, const FName SectionName, const FToolMenuInsert InPosition)
{
	ExtendMenu(MenuName)->FindOrAddSection(SectionName).InsertPosition = InPosition;
}

void UToolMenus::PushOwner(const FToolMenuOwner InOwner)
{
	OwnerStack.Push(InOwner);
}

void UToolMenus::PopOwner(const FToolMenuOwner InOwner)
{
	check(OwnerStack.Num() > 0);
	const FToolMenuOwner PoppedOwner = OwnerStack.Pop();
	check(PoppedOwner == InOwner);
}

FToolMenuOwner UToolMenus::CurrentOwner() const
{
	return OwnerStack.Num() > 0 ? OwnerStack.Last() : FToolMenuOwner();
}

void UToolMenus::AddToRegistrations()
{
	static bool bAdded = false;
	if (bAdded)
	{
		return;
	}
	bAdded = true;
	StandIn::AddRegistry(TEXT("ToolMenus"), [](TArray<StandIn::FRegistration>& OutRegistrations) {
		const UToolMenus* Manager = UObjectInitialized() ? ToolMenusPrivate::Singleton().Get() : nullptr;
		if (!Manager)
		{
			return;
		}
		for (const TPair<FName, UToolMenu*>& Pair : Manager->Menus)
		{
			const FString MenuText = Pair.Key.ToString();
			OutRegistrations.Add(StandIn::FRegistration{TEXT("ToolMenus"), MenuText, Pair.Value->MenuOwner.Pointer});
			for (const FToolMenuSection& Section : Pair.Value->Sections)
			{
				const FString SectionText = MenuText + TEXT("/") + Section.Name.ToString();
				OutRegistrations.Add(StandIn::FRegistration{TEXT("ToolMenus"), SectionText, Section.Owner.Pointer});
				for (const FToolMenuEntry& Entry : Section.Blocks)
				{
					const FString EntryText = SectionText + TEXT("/") + Entry.Name.ToString();
					OutRegistrations.Add(StandIn::FRegistration{TEXT("ToolMenus"), EntryText, Entry.Owner.Pointer});
				}
			}
		}
	});
}

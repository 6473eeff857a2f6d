// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"
#include "Containers/Ticker.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"

DEFINE_LOG_CATEGORY(LogToolMenus);

namespace ToolMenusPrivate
{
TWeakObjectPtr<UToolMenus>& Singleton()
{
	static TWeakObjectPtr<UToolMenus> Instance;
	return Instance;
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

UToolMenus* UToolMenus::TryGetExisting()
{
	return UObjectInitialized() ? ToolMenusPrivate::Singleton().Get() : nullptr;
}

UToolMenus* UToolMenus::TryGet()
{
	return FModuleManager::Get().IsModuleLoaded(TEXT("ToolMenus")) ? Get() : nullptr;
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

void UToolMenus::AddSection(
	const FName MenuName, const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
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

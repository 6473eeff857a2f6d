// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"
#include "Containers/Ticker.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/MultiBox/MultiBox.h"

namespace ToolMenusRefreshPrivate
{
bool IsInPopUp(const TSharedRef<SWidget>& Widget)
{
	FWidgetPath Path;
	FSlateApplication& Application = FSlateApplication::Get();
	return Application.GeneratePathToWidgetUnchecked(Widget, Path) && Application.FindMenuInWidgetPath(Path).IsValid();
}
}

void UToolMenus::AddLiveMenu(
	UToolMenu* Menu, const TSharedRef<FMultiBox>& MultiBox, const TSharedPtr<SMultiBoxWidget>& Widget, const bool bRegistered)
{
	LiveMenus.RemoveAll([](const FLiveMenu& LiveMenu) { return !LiveMenu.MultiBox.IsValid(); });
	FLiveMenu LiveMenu;
	LiveMenu.Menu = Menu;
	LiveMenu.MultiBox = MultiBox;
	LiveMenu.Widget = Widget;
	LiveMenu.bFromRegistration = bRegistered;
	LiveMenus.Add(LiveMenu);
}

void UToolMenus::RefreshAllWidgets()
{
	if (!RefreshTickHandle.IsValid())
	{
		RefreshTickHandle = FTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateUObject(this, &UToolMenus::OnRefreshTick));
	}
}

bool UToolMenus::OnRefreshTick(float)
{
	RefreshTickHandle.Reset();
	RefreshWidgets(NAME_None);
	return false;
}

bool UToolMenus::RefreshMenuWidget(const FName Name)
{
	return !Name.IsNone() && RefreshWidgets(Name);
}

bool UToolMenus::RefreshWidgets(const FName OnlyName)
{
	TArray<TSharedPtr<SMultiBoxWidget>> Widgets;
	for (const FLiveMenu& LiveMenu : LiveMenus)
	{
		const TSharedPtr<SMultiBoxWidget> Widget = LiveMenu.Widget.Pin();
		if (Widget.IsValid() && LiveMenu.bFromRegistration && (OnlyName.IsNone() || OnlyName == LiveMenu.Menu->MenuName))
		{
			Widgets.Add(Widget);
		}
	}
	for (const TSharedPtr<SMultiBoxWidget>& Widget : Widgets)
	{
		if (!ToolMenusRefreshPrivate::IsInPopUp(Widget.ToSharedRef()))
		{
			RefreshWidget(Widget.ToSharedRef());
		}
	}
	return Widgets.Num() > 0;
}

void UToolMenus::RefreshWidget(const TSharedRef<SMultiBoxWidget>& Widget)
{
	const auto IsWidget = [&Widget](const FLiveMenu& LiveMenu) { return LiveMenu.Widget == Widget; };
	const FLiveMenu* Old = LiveMenus.FindByPredicate(IsWidget);
	if (!Old || !FindMenu(Old->Menu->MenuName))
	{
		return;
	}
	UToolMenu* GeneratedMenu = GenerateMenu(Old->Menu->MenuName, Old->Menu->Context);
	const TSharedRef<FMultiBox> MultiBox = MakeMultiBox(GeneratedMenu);
	// The delegates may have made other menus, so the entry is looked up again.
	if (FLiveMenu* LiveMenu = LiveMenus.FindByPredicate(IsWidget))
	{
		LiveMenu->Menu = GeneratedMenu;
		LiveMenu->MultiBox = MultiBox;
		Widget->SetMultiBox(MultiBox);
		Widget->BuildMultiBoxWidget();
	}
}

// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Notifications/NotificationManager.h"
#include "Framework/Application/SlateApplication.h"

FSlateNotificationManager& FSlateNotificationManager::Get()
{
	static FSlateNotificationManager Instance;
	return Instance;
}

void FSlateNotificationManager::SetRootWindow(const TSharedRef<SWindow> InRootWindow)
{
	RootWindow = InRootWindow;
}

TSharedPtr<SNotificationItem> FSlateNotificationManager::AddNotification(const FNotificationInfo& Info)
{
	const TSharedPtr<SWindow> Root = RootWindow.Pin();
	if (!FSlateApplication::IsInitialized() || !Root.IsValid() || Root->IsDestroyed())
	{
		return TSharedPtr<SNotificationItem>();
	}
	TSharedPtr<SNotificationList> CurrentList = List.Pin();
	const TSharedPtr<SWindow> CurrentWindow = ListWindow.Pin();
	if (!CurrentList.IsValid() || !CurrentWindow.IsValid() || CurrentWindow->IsDestroyed())
	{
		CurrentList = SNew(SNotificationList);
		List = CurrentList;
		const TSharedRef<SWindow> NewWindow = SWindow::MakePopupWindow(Root->GetPositionInScreen(), EWindowType::Notification);
		NewWindow->SetContent(CurrentList.ToSharedRef());
		NewWindow->SetDPIScaleFactor(Root->GetDPIScaleFactor());
		NewWindow->SetVisibility(EVisibility::SelfHitTestInvisible);
		ListWindow = NewWindow;
		FSlateApplication::Get().AddWindowAsNativeChild(NewWindow, Root.ToSharedRef(), true);
	}
	const TSharedRef<SNotificationItem> Item = CurrentList->AddNotification(Info);
	Tick();
	return Item;
}

void FSlateNotificationManager::GetItems(TArray<TSharedRef<SNotificationItem>>& OutItems) const
{
	if (const TSharedPtr<SNotificationList> CurrentList = List.Pin())
	{
		OutItems.Append(CurrentList->GetItems());
	}
}

void FSlateNotificationManager::Tick()
{
	const TSharedPtr<SWindow> Root = RootWindow.Pin();
	const TSharedPtr<SWindow> Window = ListWindow.Pin();
	const TSharedPtr<SNotificationList> CurrentList = List.Pin();
	if (!Root.IsValid() || !Window.IsValid() || Window->IsDestroyed() || !CurrentList.IsValid())
	{
		return;
	}
	if (CurrentList->GetItems().Num() == 0)
	{
		FSlateApplication::Get().DestroyWindowImmediately(Window.ToSharedRef());
		return;
	}
	Window->LayoutWindow();
	Window->MoveWindowTo(Root->GetRectInScreen().GetBottomRight() - Window->GetSizeInScreen() - FVector2D(8.0f, 8.0f));
}

// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/Notifications/SNotificationList.h"

class SWindow;

// Shows notifications in the lower right corner of the main window. Left out: notifications from other threads, progress.

/** Shows notifications in the lower right corner of the main window. */
class SLATE_API FSlateNotificationManager
{
public:
	/** Returns the one manager. */
	static FSlateNotificationManager& Get();

	/** Sets the main window. */
	void SetRootWindow(const TSharedRef<SWindow> InRootWindow);

	/** Shows a notification; null without a running Slate or a main window. */
	TSharedPtr<SNotificationItem> AddNotification(const FNotificationInfo& Info);

	/** Returns the notifications that are there. */
	void GetItems(TArray<TSharedRef<SNotificationItem>>& OutItems) const;

	/** Moves the list to its corner and takes its window away when it is empty; the application calls it every tick. */
	void Tick();

private:
	TWeakPtr<SWindow> RootWindow;
	TWeakPtr<SWindow> ListWindow;
	TWeakPtr<SNotificationList> List;
};

// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Notifications/SNotificationList.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Slate/SlateFixture.h"

namespace
{
class FNotifications : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		Show(SNew(STestBox));
		FSlateNotificationManager::Get().SetRootWindow(Window.ToSharedRef());
	}

	static void Advance(float Seconds)
	{
		App().Tick(Seconds);
		// What went in this tick is taken away in the next.
		App().Tick(0.0f);
	}

	static int32 Count()
	{
		TArray<TSharedRef<SNotificationItem>> Items;
		FSlateNotificationManager::Get().GetItems(Items);
		return Items.Num();
	}
};
}

TEST_F(FNotifications, StayForTheirTimeAndFade)
{
	FNotificationInfo Info(FText::FromString(TEXT("Saved")));
	Info.ExpireDuration = 3.0f;
	Info.FadeOutDuration = 1.0f;
	const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(Info);
	Advance(1.0f);
	EXPECT_EQ(1.0f, Item->GetRenderOpacity());
	Advance(2.0f);
	Advance(0.5f);
	EXPECT_NEAR(0.5f, Item->GetRenderOpacity(), 0.01f);
	EXPECT_EQ(1, Count());
	Advance(0.6f);
	EXPECT_EQ(0, Count());
}

TEST_F(FNotifications, StayUntilToldToGoIfTheyAreNotFiredAndForgotten)
{
	FNotificationInfo Info(FText::FromString(TEXT("Working")));
	Info.bFireAndForget = false;
	Info.FadeOutDuration = 0.0f;
	const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(Info);
	Advance(100.0f);
	EXPECT_EQ(1, Count());
	Item->Fadeout();
	Advance(0.1f);
	EXPECT_EQ(0, Count());
}

TEST_F(FNotifications, LieInTheLowerRightCorner)
{
	FSlateNotificationManager::Get().AddNotification(FNotificationInfo(FText::FromString(TEXT("Saved"))));
	Advance(0.1f);
	TArray<TSharedRef<SWindow>> Windows;
	App().GetAllVisibleWindowsOrdered(Windows);
	ASSERT_EQ(2, Windows.Num());
	EXPECT_EQ(FVector2D(392, 292), Windows[1]->GetRectInScreen().GetBottomRight());
	EXPECT_EQ((FNotes{"Saved"}), GetPaintedTexts(Windows[1]));
}

TEST_F(FNotifications, AreNotShownWithoutAMainWindow)
{
	Window->RequestDestroyWindow();
	EXPECT_FALSE(FSlateNotificationManager::Get().AddNotification(FNotificationInfo(FText::FromString(TEXT("Saved")))).IsValid());
}

// Copyright The Tintmill authors. All rights reserved.

#include "Engine/GameViewportClient.h"

#include "StandIn/ObjectSystem.h"
#include "UObject/Package.h"
#include "ViewportDouble.h"

class FGameViewportClientTest : public testing::Test
{
protected:
	static void SetUpTestSuite() { StandIn::StartObjectSystem(); }
	virtual void SetUp() override
	{
		Client = NewObject<UGameViewportClient>(GetTransientPackage());
		Viewport = MakeShareable(new FSceneViewport(Client, TSharedPtr<SViewport>()));
	}

	UGameViewportClient* Client = nullptr;
	TSharedPtr<FSceneViewport> Viewport;
};

TEST_F(FGameViewportClientTest, LiesAtAnotherAddressThanItsClientBase)
{
	EXPECT_NE(static_cast<void*>(Client), static_cast<void*>(static_cast<FViewportClient*>(Client)));
}

TEST_F(FGameViewportClientTest, TakesTheViewportOfItsFrame)
{
	Client->SetViewportFrame(Viewport.Get());
	EXPECT_EQ(Client->Viewport, Viewport->GetViewport());
}

TEST_F(FGameViewportClientTest, LetsGoOfItsViewportWhenClosed)
{
	Client->SetViewportFrame(Viewport.Get());
	Client->CloseRequested(Client->Viewport);
	EXPECT_EQ(Client->Viewport, nullptr);
}

TEST_F(FGameViewportClientTest, TellsThatItIsClosed)
{
	FViewport* Closed = nullptr;
	Client->OnCloseRequested().AddLambda([&Closed](FViewport* InViewport) { Closed = InViewport; });
	Client->SetViewportFrame(Viewport.Get());
	Client->CloseRequested(Client->Viewport);
	EXPECT_EQ(Closed, Viewport->GetViewport());
}

TEST_F(FGameViewportClientTest, DiesWhenAnotherViewportIsClosed)
{
	EXPECT_DEATH(Client->CloseRequested(Viewport->GetViewport()), "Assertion failed: InViewport == Viewport");
}

TEST_F(FGameViewportClientTest, SharesOneCreationEventAmongAll)
{
	EXPECT_EQ(&UGameViewportClient::OnViewportCreated(), &UGameViewportClient::OnViewportCreated());
}

TEST_F(FGameViewportClientTest, HasNoWorldBeforeInit)
{
	EXPECT_EQ(Client->GetWorld(), nullptr);
}

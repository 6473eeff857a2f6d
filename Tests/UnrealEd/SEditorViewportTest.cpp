// Copyright The Tintmill authors. All rights reserved.

#include "SEditorViewport.h"

#include "Support/EditorFixture.h"

namespace
{
/** A viewport of a tool, not of the level editor. */
class SToolViewport : public SEditorViewport
{
public:
	SLATE_BEGIN_ARGS(SToolViewport) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&) { SEditorViewport::Construct(SEditorViewport::FArguments()); }

	/** What held when the commands were bound. */
	bool bHadViewportWhenBound = false;
	/** What held when the client was made. */
	bool bHadClientWhenMade = true;

protected:
	virtual TSharedRef<FEditorViewportClient> MakeEditorViewportClient() override
	{
		bHadClientWhenMade = Client.IsValid();
		return MakeShareable(new FEditorViewportClient(nullptr, nullptr, StaticCastSharedRef<SEditorViewport>(AsShared())));
	}
	virtual void BindCommands() override { bHadViewportWhenBound = Client.IsValid() && Client->Viewport != nullptr; }
};
}

class FEditorViewportWidgetTest : public FEngineFixture
{};

TEST_F(FEditorViewportWidgetTest, GivesItsViewportToItsClient)
{
	TSharedPtr<SToolViewport> Widget = SNew(SToolViewport);
	EXPECT_EQ(Widget->GetViewportClient()->Viewport, Widget->GetSceneViewport()->GetViewport());
}

TEST_F(FEditorViewportWidgetTest, GivesItsClientToItsViewport)
{
	TSharedPtr<SToolViewport> Widget = SNew(SToolViewport);
	EXPECT_EQ(Widget->GetSceneViewport()->GetClient(), Widget->GetViewportClient().Get());
}

TEST_F(FEditorViewportWidgetTest, BindsCommandsOnceTheViewportIsThere)
{
	TSharedPtr<SToolViewport> Widget = SNew(SToolViewport);
	EXPECT_TRUE(Widget->bHadViewportWhenBound);
}

TEST_F(FEditorViewportWidgetTest, HasNoClientYetWhenItMakesOne)
{
	TSharedPtr<SToolViewport> Widget = SNew(SToolViewport);
	EXPECT_FALSE(Widget->bHadClientWhenMade);
}

TEST_F(FEditorViewportWidgetTest, TakesTheViewportFromAClientThatOutlivesIt)
{
	TSharedPtr<SToolViewport> Widget = SNew(SToolViewport);
	TSharedPtr<FEditorViewportClient> Client = Widget->GetViewportClient();
	Widget.Reset();
	EXPECT_EQ(Client->Viewport, nullptr);
}

TEST_F(FEditorViewportWidgetTest, IsGoneForItsClientOnceDestroyed)
{
	TSharedPtr<SToolViewport> Widget = SNew(SToolViewport);
	TSharedPtr<FEditorViewportClient> Client = Widget->GetViewportClient();
	Widget.Reset();
	EXPECT_FALSE(Client->GetEditorViewportWidget().IsValid());
}

TEST_F(FEditorViewportWidgetTest, TakesItsClientOutOfTheListWithItself)
{
	TSharedPtr<SToolViewport> Widget = SNew(SToolViewport);
	Widget.Reset();
	EXPECT_EQ(GEditor->GetAllViewportClients().Num(), 0);
}

TEST_F(FEditorViewportWidgetTest, TakesTheClientFromAViewportThatOutlivesIt)
{
	TSharedPtr<SToolViewport> Widget = SNew(SToolViewport);
	TSharedPtr<FSceneViewport> Viewport = Widget->GetSceneViewport();
	Widget.Reset();
	EXPECT_EQ(Viewport->GetClient(), nullptr);
}

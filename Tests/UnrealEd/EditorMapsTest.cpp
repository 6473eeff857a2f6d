// Copyright The Tintmill authors. All rights reserved.

#include "Engine/World.h"
#include "FileHelpers.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "Support/EditorFixture.h"
#include "Support/TemporaryProject.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtrTemplates.h"

/** Notes what happens to worlds and maps. */
class FEditorMapsTest : public FEngineFixture
{
protected:
	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		FWorldDelegates::OnPreWorldInitialization.AddRaw(this, &FEditorMapsTest::OnPreInit);
		FWorldDelegates::OnPostWorldInitialization.AddRaw(this, &FEditorMapsTest::OnPostInit);
		FWorldDelegates::OnWorldCleanup.AddRaw(this, &FEditorMapsTest::OnCleanup);
		FWorldDelegates::OnPostWorldCleanup.AddRaw(this, &FEditorMapsTest::OnPostCleanup);
		FEditorDelegates::MapChange.AddRaw(this, &FEditorMapsTest::OnMapChange);
		FEditorDelegates::OnMapOpened.AddRaw(this, &FEditorMapsTest::OnMapOpened);
		FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor").OnMapChanged().AddRaw(this, &FEditorMapsTest::OnLevelEditorMap);
	}

	virtual void TearDown() override
	{
		FWorldDelegates::OnPreWorldInitialization.RemoveAll(this);
		FWorldDelegates::OnPostWorldInitialization.RemoveAll(this);
		FWorldDelegates::OnWorldCleanup.RemoveAll(this);
		FWorldDelegates::OnPostWorldCleanup.RemoveAll(this);
		FEditorDelegates::MapChange.RemoveAll(this);
		FEditorDelegates::OnMapOpened.RemoveAll(this);
		FEngineFixture::TearDown();
	}

	void OnPreInit(UWorld*, const UWorld::InitializationValues)
	{
		Log.Add("PreInit");
		bOldWorldGone = !OldWorld.IsValid();
	}
	void OnPostInit(UWorld*, const UWorld::InitializationValues) { Log.Add("PostInit"); }
	void OnCleanup(UWorld*, bool, bool) { Log.Add("Cleanup"); }
	void OnPostCleanup(UWorld*, bool, bool) { Log.Add("PostCleanup"); }
	void OnMapChange(uint32) { Log.Add("MapChange"); }
	void OnMapOpened(const FString&, bool) { Log.Add("MapOpened"); }
	void OnLevelEditorMap(UWorld*, EMapChangeType Type)
	{
		Log.Add(Type == EMapChangeType::TearDownWorld ? "TearDown" : Type == EMapChangeType::NewMap ? "New" : "Load");
	}

	FEventLog Log;
	TWeakObjectPtr<UWorld> OldWorld;
	bool bOldWorldGone = false;
};

TEST_F(FEditorMapsTest, TellsOfANewMapInOrder)
{
	GEditor->NewMap();
	EXPECT_EQ(Log.Get(), "TearDown Cleanup PostCleanup PreInit PostInit MapChange New");
}

TEST_F(FEditorMapsTest, TellsOfALoadedMapInOrder)
{
	GEditor->LoadMapPackage(TEXT("/Game/Maps/Demo"));
	EXPECT_EQ(Log.Get(), "TearDown Cleanup PostCleanup PreInit PostInit MapChange Load");
}

TEST_F(FEditorMapsTest, EditsTheNewWorld)
{
	UWorld* NewWorld = GEditor->NewMap();
	EXPECT_EQ(GEditor->GetEditorWorldContext().World(), NewWorld);
}

TEST_F(FEditorMapsTest, MakesTheNewWorldTheCurrentOne)
{
	UWorld* NewWorld = GEditor->NewMap();
	EXPECT_EQ(GWorld.GetReference(), NewWorld);
}

TEST_F(FEditorMapsTest, HasDestroyedTheOldWorldBeforeTheNewOneIsInitialized)
{
	OldWorld = GEditor->GetEditorWorldContext().World();
	GEditor->NewMap();
	EXPECT_TRUE(bOldWorldGone);
}

TEST_F(FEditorMapsTest, NamesALoadedMapAfterItsPackage)
{
	EXPECT_EQ(ToText(GEditor->LoadMapPackage(TEXT("/Game/Maps/Demo"))->GetMapName()), "Demo");
}

TEST_F(FEditorMapsTest, EndsPlayBeforeTheMapChanges)
{
	Play(TSharedPtr<SLevelViewport>());
	GEditor->NewMap();
	EXPECT_EQ(GEditor->PlayWorld, nullptr);
}

TEST_F(FEditorMapsTest, DoesNotOpenAMapThatIsNotThere)
{
	EXPECT_FALSE(FEditorFileUtils::LoadMap(TEXT("/Game/Maps/NoSuchMap")));
}

TEST_F(FEditorMapsTest, KeepsTheEditedWorldWhenAMapIsNotThere)
{
	FEditorFileUtils::LoadMap(TEXT("/Game/Maps/NoSuchMap"));
	EXPECT_EQ(Log.Get(), "");
}

TEST_F(FEditorMapsTest, OpensAMapByItsPackageName)
{
	const FTemporaryProject Project;
	Project.Write("Content/Maps/Demo.umap", "");
	EXPECT_TRUE(FEditorFileUtils::LoadMap(TEXT("/Game/Maps/Demo")));
}

TEST_F(FEditorMapsTest, OpensAMapByItsFile)
{
	const FTemporaryProject Project;
	Project.Write("Content/Maps/Demo.umap", "");
	FEditorFileUtils::LoadMap(Project.Path("Content/Maps/Demo.umap"));
	EXPECT_EQ(ToText(GWorld->GetOutermost()->GetName()), "/Game/Maps/Demo");
}

TEST_F(FEditorMapsTest, TellsOfAnOpenedMapLastOfAll)
{
	const FTemporaryProject Project;
	Project.Write("Content/Demo.umap", "");
	FEditorFileUtils::LoadMap(TEXT("/Game/Demo"));
	EXPECT_EQ(Log.Get(), "TearDown Cleanup PostCleanup PreInit PostInit MapChange Load MapOpened");
}

TEST_F(FEditorMapsTest, MakesAnUntitledMapFromATemplate)
{
	const FTemporaryProject Project;
	Project.Write("Content/Demo.umap", "");
	FEditorFileUtils::LoadMap(TEXT("/Game/Demo"), true);
	EXPECT_EQ(ToText(GWorld->GetName()), "Untitled");
}

TEST_F(FEditorMapsTest, DropsFeatureLevelHandlersWithTheOldWorld)
{
	int NumCalls = 0;
	GWorld->AddOnFeatureLevelChangedHandler(
		FOnFeatureLevelChanged::FDelegate::CreateLambda([&NumCalls](ERHIFeatureLevel::Type) { ++NumCalls; }));
	GEditor->NewMap()->ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(NumCalls, 0);
}

// Copyright The Tintmill authors. All rights reserved.

#include "Subsystems/AssetEditorSubsystem.h"
#include "AssetToolsFixture.h"
#include "StandIn/SimpleAssetEditors.h"

using UAssetEditorSubsystemTest = FAssetToolsFixture;

namespace
{
/** An editor window that counts how often it is brought to the front. */
class FTestEditor : public IAssetEditorInstance
{
public:
	virtual FName GetEditorName() const override { return "TestEditor"; }
	virtual void FocusWindow(UObject*) override { ++NumFocused; }
	virtual bool CloseWindow() override { return bCloses; }
	virtual bool IsPrimaryEditor() const override { return true; }

	int32 NumFocused = 0;
	bool bCloses = true;
};

UAssetEditorSubsystem* MakeSubsystem()
{
	return NewObject<UAssetEditorSubsystem>(GetTransientPackage());
}

UObject* MakeAsset()
{
	return NewObject<UAssetToolsTestAsset>(GetTransientPackage());
}
}

TEST_F(UAssetEditorSubsystemTest, OpensAnAssetThroughItsActions)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	MakeSubsystem()->OpenEditorForAsset(MakeAsset());
	EXPECT_EQ(Actions->NumOpened, 1);
}

TEST_F(UAssetEditorSubsystemTest, OpensAssetsOfOneTypeInOneCall)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	MakeSubsystem()->OpenEditorForAssets(TArray<UObject*>({MakeAsset(), MakeAsset()}));
	EXPECT_EQ(Actions->LastOpened.Num(), 2);
}

TEST_F(UAssetEditorSubsystemTest, OpensAssetsOfEachTypeWithTheirOwnActions)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	Register(UAssetToolsTestChild::StaticClass());
	MakeSubsystem()->OpenEditorForAssets(TArray<UObject*>({MakeAsset(), NewObject<UAssetToolsTestChild>(GetTransientPackage())}));
	EXPECT_EQ(Actions->LastOpened.Num(), 1);
}

TEST_F(UAssetEditorSubsystemTest, OpensNoNullAsset)
{
	EXPECT_FALSE(MakeSubsystem()->OpenEditorForAsset(static_cast<UObject*>(nullptr)));
}

TEST_F(UAssetEditorSubsystemTest, BringsAnOpenEditorToTheFront)
{
	FTestEditor Editor;
	UObject* Asset = MakeAsset();
	UAssetEditorSubsystem* Subsystem = MakeSubsystem();
	Subsystem->NotifyAssetOpened(Asset, &Editor);
	Subsystem->OpenEditorForAsset(Asset);
	EXPECT_EQ(Editor.NumFocused, 1);
}

TEST_F(UAssetEditorSubsystemTest, DoesNotOpenAnAssetThatIsOpen)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	FTestEditor Editor;
	UObject* Asset = MakeAsset();
	UAssetEditorSubsystem* Subsystem = MakeSubsystem();
	Subsystem->NotifyAssetOpened(Asset, &Editor);
	Subsystem->OpenEditorForAsset(Asset);
	EXPECT_EQ(Actions->NumOpened, 0);
}

TEST_F(UAssetEditorSubsystemTest, ForgetsAClosedAsset)
{
	FTestEditor Editor;
	UObject* Asset = MakeAsset();
	UAssetEditorSubsystem* Subsystem = MakeSubsystem();
	Subsystem->NotifyAssetOpened(Asset, &Editor);
	Subsystem->NotifyAssetClosed(Asset, &Editor);
	EXPECT_EQ(Subsystem->FindEditorForAsset(Asset, false), nullptr);
}

TEST_F(UAssetEditorSubsystemTest, SaysWhenAnEditorWasKeptOpen)
{
	FTestEditor Editor;
	Editor.bCloses = false;
	UAssetEditorSubsystem* Subsystem = MakeSubsystem();
	Subsystem->NotifyAssetOpened(MakeAsset(), &Editor);
	EXPECT_FALSE(Subsystem->CloseAllAssetEditors());
}

TEST_F(UAssetEditorSubsystemTest, TellsOfARequestBeforeOpening)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	UAssetEditorSubsystem* Subsystem = MakeSubsystem();
	int32 OpenedAtRequest = -1;
	Subsystem->OnAssetEditorRequestedOpen().AddLambda([&](UObject*) { OpenedAtRequest = Actions->NumOpened; });
	Subsystem->OpenEditorForAsset(MakeAsset());
	EXPECT_EQ(OpenedAtRequest, 0);
}

TEST_F(UAssetEditorSubsystemTest, RefusesAnAssetWithoutActions)
{
	UAssetEditorSubsystem* Subsystem = MakeSubsystem();
	EXPECT_DEATH(Subsystem->OpenEditorForAsset(MakeAsset()), "not in this stand-in: FSimpleAssetEditor");
}

TEST_F(UAssetEditorSubsystemTest, TellsWhoeverStandsInForTheSimpleEditorOfAnAssetWithoutActions)
{
	TArray<UObject*> Told;
	StandIn::SetSimpleAssetEditor([&Told](const TArray<UObject*>& Assets) { Told = Assets; });
	UObject* const Asset = MakeAsset();
	MakeSubsystem()->OpenEditorForAsset(Asset);
	StandIn::SetSimpleAssetEditor(StandIn::FSimpleAssetEditorCall());
	EXPECT_TRUE(Told.Num() == 1 && Told[0] == Asset);
}

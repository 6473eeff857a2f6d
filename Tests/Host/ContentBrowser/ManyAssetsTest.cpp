// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/BrowserFixture.h"

#include <memory>

// Tens of thousands of assets in one folder.

namespace
{
constexpr int NumAssets = 20000;

class ManyAssets : public FBrowserFixture
{
protected:
	static void SetUpTestSuite()
	{
		Files = std::make_unique<FTestFolder>();
		std::filesystem::create_directories(Files->NativePath("Many"));
		for (int Index = 0; Index < NumAssets; ++Index)
		{
			Files->Write("Many/Look" + std::to_string(NumAssets + Index) + ".cube", Index == 0 ? MakeLook() : std::string());
		}
	}

	static void TearDownTestSuite() { Files.reset(); }

	virtual FString GetContentFolder() const override { return Files->Path("") + TEXT("/"); }

	virtual void SetUp() override
	{
		FBrowserFixture::SetUp();
		Browser->ShowFolder(TEXT("/Game/Many"));
		Wait(0.1);
	}

	static std::unique_ptr<FTestFolder> Files;
};

std::unique_ptr<FTestFolder> ManyAssets::Files;

TEST_F(ManyAssets, OnlyTilesInSightAreMade)
{
	EXPECT_LT(Browser->GetNumTiles(), 60);
}

TEST_F(ManyAssets, AreAllListed)
{
	EXPECT_TRUE(Sees("20000 items"));
}

TEST_F(ManyAssets, ALetterOfASearchFiltersThem)
{
	Click("Search Content");
	Type("look39999");
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Look39999");
}

TEST_F(ManyAssets, EndGoesToTheLastOne)
{
	Click("Look20000");
	Press(EKeys::End);
	Wait(0.1);
	EXPECT_EQ(See("Look39999").ScrollRows, 0);
}

TEST_F(ManyAssets, CanBeSelectedAllAtOnce)
{
	Click("Look20000");
	PressControl(EKeys::A);
	EXPECT_TRUE(Sees("20000 items (20000 selected)"));
}

TEST_F(ManyAssets, AnItemOutOfSightIsScrolledIntoSight)
{
	const TintmillHost::FSeen Before = See("Look30000");
	Person.Hover(Before.ListCenter);
	Person.TurnWheel(static_cast<float>(-Before.ScrollRows));
	Wait(0.1);
	EXPECT_EQ(See("Look30000").ScrollRows, 0);
}
}

// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ImageStore.h"

#include "Host/Picture/PngFile.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
class ImageStore : public testing::Test
{
protected:
	std::string WriteImage(const FColor& Color)
	{
		FPicture Picture;
		Picture.Width = 1;
		Picture.Height = 1;
		Picture.Pixels = {Color};
		const std::filesystem::path File = Folder.NativePath("image.png");
		EXPECT_EQ(WritePng(Picture, File), "");
		return File.string();
	}

	FTestFolder Folder;
	FImageStore Store;
};

TEST_F(ImageStore, AFileIsReadOnce)
{
	const std::string File = WriteImage(FColor::Red);
	cairo_surface_t* const First = Store.Find(File, FLinearColor::White);
	std::filesystem::remove(File);
	EXPECT_EQ(Store.Find(File, FLinearColor::White), First);
}

TEST_F(ImageStore, ATintMakesAnotherImage)
{
	const std::string File = WriteImage(FColor::Red);
	EXPECT_NE(Store.Find(File, FLinearColor(1.0f, 0.5f, 0.5f)), Store.Find(File, FLinearColor::White));
}

TEST_F(ImageStore, OpacityMakesNoOtherImage)
{
	const std::string File = WriteImage(FColor::Red);
	EXPECT_EQ(Store.Find(File, FLinearColor(1.0f, 1.0f, 1.0f, 0.3f)), Store.Find(File, FLinearColor::White));
}

TEST_F(ImageStore, AFileThatIsNotThereGivesNothing)
{
	EXPECT_EQ(Store.Find(Folder.NativePath("gone.png").string(), FLinearColor::White), nullptr);
}
}

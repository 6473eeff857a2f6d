// Copyright The Tintmill authors. All rights reserved.

#include "Host/LookBuilder/LookBuilderWindows.h"

#include "Host/LookBuilder/SLookBuilder.h"
#include "Host/Program/Strings.h"

#include "Framework/Application/SlateApplication.h"
#include "TintmillObject.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWindow.h"

namespace TintmillHost
{
namespace
{
const FVector2D WindowSize(960.0f, 590.0f);

/** Every further window lies a little lower and to the right. */
const FVector2D FirstPlace(60.0f, 60.0f);
constexpr float PlaceStep = 28.0f;
}

FLookBuilderWindows::FLookBuilderWindows()
	: Before(StandIn::SetLookBuilder(this))
{}

FLookBuilderWindows::~FLookBuilderWindows()
{
	CloseAll();
	StandIn::SetLookBuilder(Before);
}

void FLookBuilderWindows::Open(const StandIn::FLookBuilderRequest& Request)
{
	if (!FSlateApplication::IsInitialized())
	{
		return;
	}
	const std::string Path = ToUtf8(Request.Asset->GetPathName());
	const float Offset = PlaceStep * static_cast<float>(Builders.size());
	FBuilder& Builder = Builders[Path];
	if (!Builder.Window.IsValid())
	{
		// clang-format off
		Builder.Window = SNew(SWindow)
			.Title(FText::FromString(TEXT("Look Builder - ") + Request.Asset->GetName()))
			.AutoCenter(EAutoCenter::None)
			.ScreenPosition(FirstPlace + FVector2D(Offset, Offset))
			.ClientSize(WindowSize)
			[
				SAssignNew(Builder.Content, SLookBuilder)
				.Look(Request.Asset)
			];
		// clang-format on
		Builder.Window->SetOnWindowClosed(
			FOnWindowClosed::CreateLambda([this, Path](const TSharedRef<SWindow>&) { Builders.erase(Path); }));
		FSlateApplication::Get().AddWindow(Builder.Window.ToSharedRef());
	}
	Builder.Content->SetPicture(FBuilderPicture(Request));
	Builder.Window->BringToFront();
}

void FLookBuilderWindows::Close(FBuilder& Builder)
{
	Builder.Window->SetOnWindowClosed(FOnWindowClosed());
	Builder.Window->SetContent(SNullWidget::NullWidget);
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().DestroyWindowImmediately(Builder.Window.ToSharedRef());
	}
}

void FLookBuilderWindows::CloseAll()
{
	for (auto& [Path, Builder] : Builders)
	{
		Close(Builder);
	}
	Builders.clear();
}

void FLookBuilderWindows::Regrade(const TArray<UTintmillObject*>& Looks)
{
	for (const UTintmillObject* Look : Looks)
	{
		const auto Found = Builders.find(ToUtf8(Look->GetPathName()));
		if (Found != Builders.end())
		{
			Found->second.Content->Regrade();
		}
	}
}

std::vector<std::string> FLookBuilderWindows::GetPaths() const
{
	std::vector<std::string> Paths;
	for (const auto& [Path, Builder] : Builders)
	{
		Paths.push_back(Path);
	}
	return Paths;
}

const FLookBuilderWindows::FBuilder* FLookBuilderWindows::Find(const std::string& Look) const
{
	for (const auto& [Path, Builder] : Builders)
	{
		if (Path == Look || Path.ends_with("." + Look))
		{
			return &Builder;
		}
	}
	return nullptr;
}

TSharedPtr<SLookBuilder> FLookBuilderWindows::Show(const std::string& Look)
{
	const FBuilder* const Builder = Find(Look);
	if (Builder == nullptr)
	{
		return nullptr;
	}
	Builder->Window->BringToFront();
	return Builder->Content;
}

TSharedPtr<SWindow> FLookBuilderWindows::FindWindow(const std::string& Look) const
{
	const FBuilder* const Builder = Find(Look);
	return Builder == nullptr ? nullptr : Builder->Window;
}

FPictureView FLookBuilderWindows::FindPicture(const FSlateBrush& Brush, const FIntPoint& DeviceSize)
{
	for (auto& [Path, Builder] : Builders)
	{
		if (Builder.Content->GetBrushName() == Brush.GetResourceName())
		{
			Builder.Composed = Builder.Content->Compose(DeviceSize);
			return {DeviceSize, Builder.Composed.Pixels.GetData()};
		}
	}
	return {};
}
}

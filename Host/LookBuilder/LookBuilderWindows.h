// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Picture/Picture.h"
#include "StandIn/LookBuilder.h"
#include "Templates/SharedPointer.h"

#include <map>
#include <string>
#include <vector>

class SWindow;
class UTintmillObject;

namespace TintmillHost
{
class SLookBuilder;

/** The windows of the look builder, one for each look that was opened; in the place of the default receiver while it lives. */
class FLookBuilderWindows : public StandIn::ILookBuilder
{
public:
	FLookBuilderWindows();
	virtual ~FLookBuilderWindows() override;
	FLookBuilderWindows(const FLookBuilderWindows&) = delete;
	FLookBuilderWindows& operator=(const FLookBuilderWindows&) = delete;

	/** Opens a look's window, or shows the new picture in the one that is open. */
	virtual void Open(const StandIn::FLookBuilderRequest& Request) override;

	/** Closes all windows. */
	void CloseAll();

	/** Grades the pictures of these looks anew. */
	void Regrade(const TArray<UTintmillObject*>& Looks);

	/** The object paths of the looks whose windows are open, in alphabetical order. */
	std::vector<std::string> GetPaths() const;

	/** The content of the window of a look, by its name or object path, which comes to the front; null if there is none. */
	TSharedPtr<SLookBuilder> Show(const std::string& Look);

	/** The window of a look, by its name or object path; null if there is none. */
	TSharedPtr<SWindow> FindWindow(const std::string& Look) const;

	/** The picture of a brush that is one of the builders'; no pixels for any other. */
	FPictureView FindPicture(const FSlateBrush& Brush, const FIntPoint& DeviceSize);

private:
	struct FBuilder
	{
		TSharedPtr<SWindow> Window;
		TSharedPtr<SLookBuilder> Content;
		FPicture Composed;
	};

	void Close(FBuilder& Builder);
	const FBuilder* Find(const std::string& Look) const;

	/** By the object paths of their looks. */
	std::map<std::string, FBuilder> Builders;
	StandIn::ILookBuilder* Before;
};
}

// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/GCObject.h"

class UWorld;

// The world of a preview in an editor tool. Lights, sky and components are left out: the scene is an initialised empty world.

/** A preview's world, alive as long as the scene is. */
class ENGINE_API FPreviewScene : public FGCObject
{
public:
	/** How the scene is made. */
	struct ConstructionValues
	{
		/** An editor preview. */
		ConstructionValues()
			: bEditor(true)
		{}

		bool bEditor;

		/** Sets whether the scene is an editor's preview or a game's. */
		ConstructionValues& SetEditor(const bool bInEditor)
		{
			bEditor = bInEditor;
			return *this;
		}
	};

	/** Makes and initialises the world. */
	FPreviewScene(ConstructionValues CVS = ConstructionValues());
	virtual ~FPreviewScene();
	FPreviewScene(const FPreviewScene&) = delete;
	FPreviewScene& operator=(const FPreviewScene&) = delete;

	/** Returns the world. */
	UWorld* GetWorld() const { return PreviewWorld; }

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;

private:
	UWorld* PreviewWorld;
};

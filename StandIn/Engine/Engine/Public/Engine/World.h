// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "Delegates/Delegate.h"
#include "Engine/EngineTypes.h"
#include "Logging/LogMacros.h"
#include "RHIDefinitions.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "World.generated.h"

// A world: its type, its feature level, its life from initialisation to clean-up, and the events of both.
// Left out: levels, actors, physics, rendering scenes, streaming, networking. A world holds nothing that could be seen; the
// picture of a viewport comes from StandIn/ScenePainter.h.
// Uncertain in the engine and settled here: OnWorldBeginTearDown fires for play worlds only, not for an editor world that is
// replaced by another map.

class UGameInstance;
class UGameViewportClient;
class UWorld;
namespace StandIn
{
struct FWorldAccess;
}

ENGINE_API DECLARE_LOG_CATEGORY_EXTERN(LogWorld, Log, All);

DECLARE_MULTICAST_DELEGATE_OneParam(FOnFeatureLevelChanged, ERHIFeatureLevel::Type);

/** The current world of the engine, a pointer that knows when it may be asked. */
class UWorldProxy
{
public:
	/** Points at no world. */
	UWorldProxy()
		: World(nullptr)
	{}

	/** Points at a world, or at none. */
	UWorldProxy& operator=(UWorld* InWorld)
	{
		World = InWorld;
		return *this;
	}

	UWorldProxy(const UWorldProxy&) = delete;
	UWorldProxy& operator=(const UWorldProxy&) = delete;

	/** Returns the world; fatal without one. */
	UWorld* operator->() const
	{
		check(World != nullptr);
		return World;
	}

	/** Returns the world; fatal without one. */
	UWorld& operator*() const
	{
		check(World != nullptr);
		return *World;
	}

	/** Returns the world or null. */
	operator UWorld*() const { return World; }

	/** Returns the world or null. */
	UWorld* GetReference() const { return World; }

private:
	UWorld* World;
};

/** The current world: the edited one, or the play world while a play session ticks. */
extern ENGINE_API UWorldProxy GWorld;

/** The top object of a map, of a play session or of a preview. */
UCLASS()
class ENGINE_API UWorld final : public UObject
{
	GENERATED_BODY()

public:
	/** What InitWorld sets up. */
	struct InitializationValues
	{
		/** Everything a normal world has. */
		InitializationValues()
			: bInitializeScenes(true)
			, bAllowAudioPlayback(true)
			, bRequiresHitProxies(true)
			, bCreatePhysicsScene(true)
			, bCreateNavigation(true)
			, bCreateAISystem(true)
			, bShouldSimulatePhysics(true)
			, bEnableTraceCollision(false)
			, bTransactional(true)
			, bCreateFXSystem(true)
		{}

		uint32 bInitializeScenes : 1;
		uint32 bAllowAudioPlayback : 1;
		uint32 bRequiresHitProxies : 1;
		uint32 bCreatePhysicsScene : 1;
		uint32 bCreateNavigation : 1;
		uint32 bCreateAISystem : 1;
		uint32 bShouldSimulatePhysics : 1;
		uint32 bEnableTraceCollision : 1;
		uint32 bTransactional : 1;
		uint32 bCreateFXSystem : 1;

		/** Sets whether scenes are made. */
		InitializationValues& InitializeScenes(const bool bInitialize)
		{
			bInitializeScenes = bInitialize;
			return *this;
		}

		/** Sets whether sound is played. */
		InitializationValues& AllowAudioPlayback(const bool bAllow)
		{
			bAllowAudioPlayback = bAllow;
			return *this;
		}

		/** Sets whether a physics scene is made. */
		InitializationValues& CreatePhysicsScene(const bool bCreate)
		{
			bCreatePhysicsScene = bCreate;
			return *this;
		}

		/** Sets whether physics is simulated. */
		InitializationValues& ShouldSimulatePhysics(const bool bInShouldSimulatePhysics)
		{
			bShouldSimulatePhysics = bInShouldSimulatePhysics;
			return *this;
		}

		/** Sets whether the world's objects take part in undo. */
		InitializationValues& SetTransactional(const bool bInTransactional)
		{
			bTransactional = bInTransactional;
			return *this;
		}
	};

	UWorld(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** What the world is for. */
	TEnumAsByte<EWorldType::Type> WorldType;

	/** The feature level the world is shown at. */
	ERHIFeatureLevel::Type FeatureLevel;

	/** InitWorld has run and CleanupWorld has not. */
	uint8 bIsWorldInitialized : 1;

	/** BeginTearingDown has run. */
	uint8 bIsTearingDown : 1;

	/** BeginPlay has run. */
	uint8 bBegunPlay : 1;

	/** Makes a world of a type, adds it to the root set unless told otherwise, and initialises it. */
	static UWorld* CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName = NAME_None,
		UPackage* InWorldPackage = nullptr, bool bAddToRoot = true, ERHIFeatureLevel::Type InFeatureLevel = ERHIFeatureLevel::Num);

	/** Initialises the world between OnPreWorldInitialization and OnPostWorldInitialization; a second time is an ensure and does nothing. */
	void InitWorld(const InitializationValues IVS = InitializationValues());

	/** Marks the world as going away and fires OnWorldBeginTearDown. */
	void BeginTearingDown();

	/** Ends the world's life: fires OnWorldCleanup and OnPostWorldCleanup. */
	void CleanupWorld(bool bSessionEnded = true, bool bCleanupResources = true, UWorld* NewWorld = nullptr);

	/** Cleans the world up and lets the garbage collector have it. */
	void DestroyWorld(bool bInformEngineOfWorld, UWorld* NewWorld = nullptr);

	/** Starts play. */
	void BeginPlay();

	/** Tells whether play has started. */
	bool HasBegunPlay() const { return bBegunPlay; }

	/** Tells whether a game runs in this world, in the editor or out of it. */
	bool IsGameWorld() const;

	/** Tells whether this is an edited, previewed or inactive editor world. */
	bool IsEditorWorld() const;

	/** Tells whether this is a preview. */
	bool IsPreviewWorld() const;

	/** Tells whether this is the world of a play-in-editor session. */
	bool IsPlayInEditor() const;

	/** Returns the name of the map, without folder. */
	const FString GetMapName() const;

	/** Binds a delegate to changes of this world's feature level. */
	FDelegateHandle AddOnFeatureLevelChangedHandler(const FOnFeatureLevelChanged::FDelegate& InOnFeatureLevelChangedDelegate);

	/** Unbinds what AddOnFeatureLevelChangedHandler bound; nothing happens for a handle that is not bound. */
	void RemoveOnFeatureLevelChangedHandler(FDelegateHandle InHandle);

	/** Changes the feature level and then fires the bound delegates; nothing happens when it is the present one. */
	void ChangeFeatureLevel(ERHIFeatureLevel::Type InFeatureLevel, bool bShowSlowProgressDialog = true);

	/** Returns the game instance of a play world, or null. */
	UGameInstance* GetGameInstance() const { return OwningGameInstance; }

	/** Sets the game instance that owns the world. */
	void SetGameInstance(UGameInstance* NewGI) { OwningGameInstance = NewGI; }

	/** Returns the game viewport of the world's context, or null. */
	UGameViewportClient* GetGameViewport() const;

	virtual UWorld* GetWorld() const override;
	virtual void BeginDestroy() override;

private:
	friend struct StandIn::FWorldAccess;

	UPROPERTY(transient)
	UGameInstance* OwningGameInstance;

	FOnFeatureLevelChanged OnFeatureLevelChanged;
};

/** The events of all worlds. */
class ENGINE_API FWorldDelegates
{
public:
	DECLARE_MULTICAST_DELEGATE_TwoParams(FWorldInitializationEvent, UWorld*, const UWorld::InitializationValues);
	DECLARE_MULTICAST_DELEGATE_OneParam(FWorldEvent, UWorld*);
	DECLARE_MULTICAST_DELEGATE_ThreeParams(FWorldCleanupEvent, UWorld*, bool, bool);

	/** Before a world is initialised; the world's type is set. */
	static FWorldInitializationEvent OnPreWorldInitialization;

	/** After a world was initialised. */
	static FWorldInitializationEvent OnPostWorldInitialization;

	/** When a play world starts to go away. */
	static FWorldEvent OnWorldBeginTearDown;

	/** When a world is cleaned up; says whether the session ended and whether resources are cleaned up. */
	static FWorldCleanupEvent OnWorldCleanup;

	/** After a world was cleaned up. */
	static FWorldCleanupEvent OnPostWorldCleanup;

private:
	FWorldDelegates() {}
};

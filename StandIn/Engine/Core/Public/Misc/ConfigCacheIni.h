// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

// The configuration: ini files, read through a hierarchy and written back.
//
// Hierarchy of a global ini: <Engine>/Config/Base<Name>.ini, <Project>/Config/Default<Name>.ini and the saved file
// <Project>/Saved/Config/<Platform>/<Name>.ini, later ones over earlier ones. In the Base and Default files a bare key sets its
// value and + - . ! add once, remove, add always and clear; in the saved file only bare keys count, they repeat for arrays, and
// they replace all that the hierarchy has for the key. A saved file therefore cannot make an array empty that the hierarchy
// fills; that is so in the engine, too.
//
// Saving writes what differs from the hierarchy, a line an array element, through StandIn/AtomicFile.h; comments, unknown
// keys, other sections, half lines and the order of lines stay. Line ends are the platform's, encoding is UTF-8 without a
// mark; reading takes UTF-8 and UTF-16 with marks, too. A file with lines that are no text (bytes that are not UTF-8, control
// characters) is copied aside as <file>.unreadable-<n> before anything is written in its place: its good lines are used and
// kept, the others are in the copy only. A file that cannot be opened is renamed so before the first save. A person learns
// of either, and of a failed save, through StandIn/Notices.h; after a failed save the file stays dirty.
// StandIn/ConfigOrigin.h tells the file and line a value came from.
//
// Left out: platform and user layers, keyed struct arrays (@ and * lines are logged and skipped), macros in values (%GAMEDIR%),
// line continuation, text values, remote configuration. A value with line ends or other control characters is written in quotes.

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogConfig, Warning, All);

namespace StandIn
{
class FConfigDocument;
}

/** One value of a key. */
struct CORE_API FConfigValue
{
	FConfigValue() {}
	FConfigValue(const TCHAR* InValue)
		: SavedValue(InValue)
	{}
	FConfigValue(const FString& InValue)
		: SavedValue(InValue)
	{}
	FConfigValue(FString&& InValue)
		: SavedValue(MoveTemp(InValue))
	{}

	/** The value; the engine expands macros here. */
	const FString& GetValue() const { return SavedValue; }
	/** The value as it stands in the file. */
	const FString& GetSavedValue() const { return SavedValue; }

	/** Compares the texts, case-sensitively. */
	bool operator==(const FConfigValue& Other) const { return SavedValue.Equals(Other.SavedValue); }
	bool operator!=(const FConfigValue& Other) const { return !(*this == Other); }

	/** Not in the engine: number of the file the value was read from (StandIn/ConfigOrigin.h), or INDEX_NONE. */
	int32 OriginFile = INDEX_NONE;
	/** Not in the engine: line the value was read from, or 0. */
	int32 OriginLine = 0;

private:
	FString SavedValue;
};

typedef TMultiMap<FName, FConfigValue> FConfigSectionMap;

/** The keys of a section; a key may occur several times. */
class CORE_API FConfigSection : public FConfigSectionMap
{
public:
	/** Says whether two sections hold the same values in the same order of each key. */
	bool operator==(const FConfigSection& Other) const;
	bool operator!=(const FConfigSection& Other) const { return !(*this == Other); }

	/** Removes all values of a key; returns how many. The order of the others, and of values added later, stays that of adding. */
	int32 Remove(const FName& Key);
	/** Removes the first equal value of a key; returns how many. The order of the others stays that of adding. */
	int32 RemoveSingle(const FName& Key, const FConfigValue& Value);
	/** Not in the engine: closes the gaps of removed values, so that later ones are added at the end. */
	void CloseGaps();

	/** Says whether a text starts and ends with a double quote. */
	static bool HasQuotes(const FString& Test);
};

/** One ini file in memory: its sections, or those of a whole hierarchy. */
class CORE_API FConfigFile : public TMap<FString, FConfigSection>
{
public:
	FConfigFile();
	virtual ~FConfigFile();
	FConfigFile(const FConfigFile& Other);
	FConfigFile& operator=(const FConfigFile& Other);

	/** True when it holds changes that are not on disk. */
	bool Dirty;
	/** True for a file that is never written. */
	bool NoSave;
	/** Name of the ini, such as EditorPerProjectUserSettings. */
	FName Name;
	/** The hierarchy below the saved file, or null; what equals it is not written. */
	FConfigFile* SourceConfigFile;

	/** Lays a hierarchy file (Base or Default) over the content; false when it cannot be read. */
	bool Combine(const FString& Filename);
	/** Lays the text of a hierarchy file over the content. */
	void CombineFromBuffer(const FString& Buffer);
	/** Empties itself and reads a saved file; the hierarchy, where there is one, fills in the keys that the file does not have. */
	void Read(const FString& Filename);
	/** Writes a saved file if it is dirty; false, with a notice, when it could not be written (it stays dirty then). */
	bool Write(const FString& Filename, bool bDoRemoteWrite = true, const FString& InitialText = FString());
	/** Reads the text of a saved file over the content: the first line of a key replaces what is there. */
	void ProcessInputFileContents(const FString& Contents);

	/** Finds a section, adding an empty one if needed. */
	FConfigSection* FindOrAddSection(const FString& InName);

	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const;
	bool GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value) const;
	bool GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value) const;
	bool GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value) const;
	bool GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value) const;
	/** All values of a key, in order; returns their number. */
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Value) const;

	/** Sets a value; only a change makes the file dirty. */
	void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value);
	/** Sets all values of a key; only a change makes the file dirty. */
	void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value);

private:
	friend class FConfigFileAccess;

	/** The saved file's lines as they were last read or written. */
	TSharedPtr<StandIn::FConfigDocument> Document;
	/** Owner of SourceConfigFile. */
	TSharedPtr<FConfigFile> SourceOwner;
};

enum class EConfigCacheType : uint8
{
	/** Files are read from and written to the disk. */
	DiskBacked,
	/** Nothing touches the disk. */
	Temporary
};

/** All ini files in memory, by file name; `GConfig` is the one in use. */
class CORE_API FConfigCacheIni : public TMap<FString, FConfigFile>
{
public:
	explicit FConfigCacheIni(EConfigCacheType Type = EConfigCacheType::DiskBacked);
	/** Writes what is dirty. */
	virtual ~FConfigCacheIni();
	FConfigCacheIni(const FConfigCacheIni&) = delete;
	FConfigCacheIni& operator=(const FConfigCacheIni&) = delete;

	/** Stops all reading and writing of files. */
	virtual void DisableFileOperations();
	/** Allows reading and writing of files again. */
	virtual void EnableFileOperations();
	/** Says whether files are left alone. */
	virtual bool AreFileOperationsDisabled();

	/** The file if it is in memory, else null. */
	FConfigFile* FindConfigFile(const FString& Filename);
	/** The file, read from disk if needed; a missing one is null or made empty, as asked for. */
	FConfigFile* Find(const FString& InFilename, bool CreateIfNotFound);

	/** Writes dirty files (all, or one); with bRead they also leave the memory and are read again when next asked for. */
	void Flush(bool bRead, const FString& Filename = TEXT(""));
	/** Reads a file into memory; with a fallback its content is what the file adds to. */
	void LoadFile(const FString& InFilename, const FConfigFile* Fallback = nullptr, const TCHAR* PlatformString = nullptr);
	/** Puts a file's content into memory. */
	void SetFile(const FString& InFilename, const FConfigFile* NewConfigFile);
	/** Drops a file from memory without writing it. */
	void UnloadFile(const FString& Filename);

	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename);
	bool GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename);
	bool GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename);
	bool GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename);
	/** True for the texts 1, True, Yes and On in any case, false for any other; false returned when the key is absent. */
	bool GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename);
	/** The key's value or "". */
	FString GetStr(const TCHAR* Section, const TCHAR* Key, const FString& Filename);
	/** All values of a key, in order; returns their number. */
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Out_Arr, const FString& Filename);
	/** All lines of a section as `Key=Value`; false when there is no such section. */
	bool GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename);
	/** The section itself, made if forced; unless Const the file counts as dirty from then on. */
	FConfigSection* GetSectionPrivate(const TCHAR* Section, const bool Force, const bool Const, const FString& Filename);
	bool DoesSectionExist(const TCHAR* Section, const FString& Filename);
	/** Names of a file's sections. */
	bool GetSectionNames(const FString& Filename, TArray<FString>& out_SectionNames);
	/** Names of the files in memory. */
	void GetConfigFilenames(TArray<FString>& ConfigFilenames);

	void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename);
	void SetInt(const TCHAR* Section, const TCHAR* Key, const int32 Value, const FString& Filename);
	void SetFloat(const TCHAR* Section, const TCHAR* Key, const float Value, const FString& Filename);
	void SetBool(const TCHAR* Section, const TCHAR* Key, const bool Value, const FString& Filename);
	/** Sets all values of a key. */
	void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename);
	/** Removes all values of a key; false when there are none. */
	bool RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename);
	/** Removes a section; false when there is none. */
	bool EmptySection(const TCHAR* Section, const FString& Filename);

	/** Makes GConfig (a former one is flushed and destroyed), reads the global inis of engine and project, sets their names. */
	static void InitializeConfigSystem();

	/** Reads an ini with its hierarchy into GConfig and gives the saved file's name; false when no file of it exists. */
	static bool LoadGlobalIniFile(FString& FinalIniFilename, const TCHAR* BaseIniName, const TCHAR* Platform = nullptr,
		bool bForceReload = false, bool bRequireDefaultIni = false, bool bAllowGeneratedIniWhenCooked = true,
		bool bAllowRemoteConfig = true, const TCHAR* GeneratedConfigDir = *FPaths::GeneratedConfigDir());

	/** Reads an ini with its hierarchy (or the one file) into an object apart from GConfig. */
	static bool LoadLocalIniFile(
		FConfigFile& ConfigFile, const TCHAR* IniName, bool bIsBaseIniName, const TCHAR* Platform = nullptr, bool bForceReload = false);

	/** The saved file's name of an ini: <GeneratedConfigDir>/<Platform>/<BaseIniName>.ini. */
	static FString GetDestIniFilename(const TCHAR* BaseIniName, const TCHAR* PlatformName, const TCHAR* GeneratedConfigDir);

private:
	bool LoadHierarchy(const FString& DestFilename, const FString& BaseIniName);

	EConfigCacheType Type;
	bool bAreFileOperationsDisabled;
	/** Ini names of the files that have a hierarchy, by file name. */
	TMap<FString, FString> HierarchyNames;
};

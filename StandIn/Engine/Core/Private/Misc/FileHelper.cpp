// Copyright The Tintmill authors. All rights reserved.

#include "Misc/FileHelper.h"

#include "HAL/NativePath.h"
#include "Misc/Paths.h"
#include "Misc/TextCodec.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace
{
bool ReadWholeFile(const TCHAR* Filename, std::string& OutBytes)
{
	std::filesystem::path Path;
	std::error_code Error;
	if (!StandInPrivate::ToNativePath(Filename, Path) || std::filesystem::is_directory(Path, Error))
	{
		return false;
	}
	std::ifstream File(Path, std::ios::binary);
	if (!File)
	{
		return false;
	}
	char Piece[65536];
	do
	{
		File.read(Piece, sizeof(Piece));
		OutBytes.append(Piece, size_t(File.gcount()));
	} while (File && OutBytes.size() <= size_t(MAX_int32));
	// What does not fit into an engine array counts as unreadable.
	return !File.bad() && OutBytes.size() <= size_t(MAX_int32);
}

bool WriteWholeFile(const TCHAR* Filename, const char* Bytes, size_t NumBytes)
{
	std::filesystem::path Path;
	if (!StandInPrivate::ToNativePath(Filename, Path) || IFileManager::Get().IsReadOnly(Filename))
	{
		return false;
	}
	const FString Folder = FPaths::GetPath(Filename);
	if (!Folder.IsEmpty())
	{
		IFileManager::Get().MakeDirectory(*Folder, true);
	}
	std::ofstream File(Path, std::ios::binary | std::ios::trunc);
	File.write(Bytes, std::streamsize(NumBytes));
	File.close();
	return File.good();
}

bool IsAscii(const FString& String)
{
	for (int32 Index = 0; Index < String.Len(); ++Index)
	{
		if (uint16(String[Index]) > 0x7f)
		{
			return false;
		}
	}
	return true;
}
}

bool FFileHelper::LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags)
{
	(void)Flags;
	std::string Bytes;
	if (!ReadWholeFile(Filename, Bytes))
	{
		return false;
	}
	Result.Reset();
	Result.Append(reinterpret_cast<const uint8*>(Bytes.data()), int32(Bytes.size()));
	return true;
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename)
{
	std::string Bytes;
	if (!ReadWholeFile(Filename, Bytes))
	{
		return false;
	}
	BufferToString(Result, reinterpret_cast<const uint8*>(Bytes.data()), int32(Bytes.size()));
	return true;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename)
{
	std::string Bytes;
	Result.Reset();
	if (!ReadWholeFile(Filename, Bytes))
	{
		return false;
	}
	for (const StandInPrivate::FTextLine& Line :
		StandInPrivate::DecodeLines(reinterpret_cast<const uint8*>(Bytes.data()), int64(Bytes.size())))
	{
		Result.Add(FString(Line.Text.c_str()));
	}
	return true;
}

void FFileHelper::BufferToString(FString& Result, const uint8* Buffer, int32 Size)
{
	Result = StandInPrivate::DecodeText(Buffer, Size);
}

bool FFileHelper::SaveArrayToFile(const TArray<uint8>& Array, const TCHAR* Filename, IFileManager* FileManager, uint32 WriteFlags)
{
	(void)FileManager;
	(void)WriteFlags;
	return WriteWholeFile(Filename, reinterpret_cast<const char*>(Array.GetData()), size_t(Array.Num()));
}

bool FFileHelper::SaveStringToFile(
	const FString& String, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager* FileManager, uint32 WriteFlags)
{
	(void)FileManager;
	(void)WriteFlags;
	std::string Bytes;
	if (EncodingOptions == EEncodingOptions::ForceUnicode || (EncodingOptions == EEncodingOptions::AutoDetect && !IsAscii(String)))
	{
		Bytes = "\xff\xfe";
		for (int32 Index = 0; Index < String.Len(); ++Index)
		{
			Bytes += char(uint16(String[Index]) & 0xff);
			Bytes += char(uint16(String[Index]) >> 8);
		}
	}
	else if (EncodingOptions == EEncodingOptions::ForceAnsi)
	{
		for (int32 Index = 0; Index < String.Len(); ++Index)
		{
			Bytes += uint16(String[Index]) > 0x7f ? '?' : char(String[Index]);
		}
	}
	else
	{
		Bytes = EncodingOptions == EEncodingOptions::ForceUTF8 ? "\xef\xbb\xbf" : "";
		Bytes += StandInPrivate::ToUtf8(String);
	}
	return WriteWholeFile(Filename, Bytes.data(), Bytes.size());
}

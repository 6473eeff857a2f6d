// Copyright The Tintmill authors. All rights reserved.
#include "Tool.h"

#include "HeaderParser.h"
#include "HeaderWriter.h"
#include "OutputFile.h"
#include "PackageWriter.h"
#include "SourceWriter.h"
#include "TextTools.h"
#include "TypeResolver.h"

namespace HeaderTool
{

namespace
{

/** The folder that the engine's tool takes as the root of the file ids. */
std::string GetRootName(const FModule& Module)
{
	return Module.Type == EModuleType::EngineRuntime ? "Engine" : "HostProject";
}

}

FTool::FTool(const FManifest& InManifest)
	: Manifest(InManifest)
{}

void FTool::Read()
{
	for (const FModule& Module : Manifest.GetModules())
	{
		for (const std::filesystem::path& Path : Module.Headers)
		{
			AddHeader(Module, Path);
		}
	}
	for (const std::unique_ptr<FHeader>& Header : Headers)
	{
		for (const std::unique_ptr<FReflectedType>& Type : Header->Types)
		{
			Table.Add(*Type, Diagnostics);
		}
	}
	FTypeResolver Resolver(Table, Diagnostics);
	for (const std::unique_ptr<FHeader>& Header : Headers)
	{
		for (const std::unique_ptr<FReflectedType>& Type : Header->Types)
		{
			Resolver.Resolve(*Type);
		}
	}
}

void FTool::AddHeader(const FModule& Module, const std::filesystem::path& Path)
{
	auto Header = std::make_unique<FHeader>();
	Header->Path = Path;
	Header->Module = &Module;
	Header->Leaf = Path.stem().string();
	Header->ModuleRelativePath = Path.lexically_relative(Module.Directory).generic_string();
	Header->FileId = ToIdentifier(GetRootName(Module) + "_Source_" + Module.Name + "_" + Header->ModuleRelativePath);
	const std::string File = Path.generic_string();
	if (Header->ModuleRelativePath.empty() || Header->ModuleRelativePath.compare(0, 2, "..") == 0)
	{
		Diagnostics.Error(File, 1, "The header is not in the folder of its module '" + Module.Directory.generic_string() + "'");
		return;
	}
	std::string Text;
	if (!ReadFile(Path, Text))
	{
		Diagnostics.Error(File, 1, "The header cannot be read");
		return;
	}
	if (Text.compare(0, 2, "\xFF\xFE") == 0 || Text.compare(0, 2, "\xFE\xFF") == 0)
	{
		Diagnostics.Error(File, 1, "The header is in UTF-16; save it in UTF-8");
		return;
	}
	CheckLeaf(*Header);
	FHeaderParser(*Header, Diagnostics).Parse(Text);
	Headers.push_back(std::move(Header));
}

void FTool::CheckLeaf(const FHeader& Header)
{
	for (const std::unique_ptr<FHeader>& Other : Headers)
	{
		if (EqualsIgnoreCase(Other->Leaf, Header.Leaf))
		{
			Diagnostics.Error(Header.Path.generic_string(), 1,
				"Duplicate leaf header name found: " + Header.Path.generic_string() + " (original: " + Other->Path.generic_string() + ")");
			return;
		}
	}
}

int FTool::Write() const
{
	int Written = 0;
	for (const FModule& Module : Manifest.GetModules())
	{
		std::string AllSources;
		std::string AllHeaders;
		for (const std::unique_ptr<FHeader>& Header : Headers)
		{
			if (Header->Module != &Module)
			{
				continue;
			}
			const std::string Declarations = FHeaderWriter(*Header).Write();
			const std::string Source = WriteSource(*Header);
			Written += WriteFileIfChanged(Module.OutputDirectory / (Header->Leaf + ".generated.h"), Declarations) ? 1 : 0;
			Written += WriteFileIfChanged(Module.OutputDirectory / (Header->Leaf + ".gen.cpp"), Source) ? 1 : 0;
			AllHeaders += Declarations;
			AllSources += Source;
		}
		if (!Module.Headers.empty())
		{
			const std::string Package = WritePackageSource(Module, AllSources, AllHeaders);
			Written += WriteFileIfChanged(Module.OutputDirectory / (Module.Name + ".init.gen.cpp"), Package) ? 1 : 0;
		}
	}
	return Written;
}

int Run(const std::string& ManifestFile, std::ostream& Out, std::ostream& Err)
{
	try
	{
		const FManifest Manifest = FManifest::Load(ManifestFile);
		FTool Tool(Manifest);
		Tool.Read();
		if (Tool.GetDiagnostics().HasErrors())
		{
			Tool.GetDiagnostics().Print(Err);
			return 1;
		}
		const int Written = Tool.Write();
		Out << "Reflection code is up to date, " << Written << (Written == 1 ? " file" : " files") << " written.\n";
		return 0;
	}
	catch (const FManifestError& Problem)
	{
		Err << Problem.what() << '\n';
		return 2;
	}
	catch (const FOutputError& Problem)
	{
		Err << Problem.what() << '\n';
		return 1;
	}
}

}

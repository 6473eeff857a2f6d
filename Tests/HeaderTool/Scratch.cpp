// Copyright The Tintmill authors. All rights reserved.
#include "Scratch.h"

#include "OutputFile.h"
#include "Tool.h"

#include <fstream>
#include <random>
#include <sstream>

const char* const ThingOpening = "#pragma once\n#include \"Thing.generated.h\"\n";

FScratch::FScratch()
{
	std::random_device Random;
	do
	{
		Root = std::filesystem::temp_directory_path() / ("HeaderTool_" + std::to_string(Random()));
	} while (!std::filesystem::create_directory(Root));
}

FScratch::~FScratch()
{
	std::error_code Code;
	std::filesystem::remove_all(Root, Code);
}

void FScratch::AddModule(const std::string& Name, const std::string& Type)
{
	AddModule(Name, Type, Root / Name);
}

void FScratch::AddModule(const std::string& Name, const std::string& Type, const std::filesystem::path& Directory)
{
	ModuleDirectory = Directory;
	Manifest += "Module " + Name + " " + Type + " " + Directory.generic_string() + " " + (Root / "Out" / Name).generic_string() + "\n";
}

void FScratch::AddHeader(const std::string& RelativePath, const std::string& Text)
{
	const std::filesystem::path File = ModuleDirectory / RelativePath;
	std::filesystem::create_directories(File.parent_path());
	std::ofstream(File, std::ios::binary) << Text;
	ListHeader(RelativePath);
}

void FScratch::ListHeader(const std::string& RelativePath)
{
	Manifest += "Header " + (ModuleDirectory / RelativePath).generic_string() + "\n";
}

int FScratch::Run()
{
	const std::filesystem::path File = Root / "Modules.manifest";
	std::ofstream(File, std::ios::binary) << Manifest;
	std::ostringstream Out;
	std::ostringstream Err;
	const int Code = HeaderTool::Run(File.string(), Out, Err);
	Complaints = Err.str();
	const std::string Prefix = Root.generic_string() + "/";
	for (std::size_t At = Complaints.find(Prefix); At != std::string::npos; At = Complaints.find(Prefix))
	{
		Complaints.erase(At, Prefix.size());
	}
	return Code;
}

std::filesystem::path FScratch::GetOutput(const std::string& Module, const std::string& File) const
{
	return Root / "Out" / Module / File;
}

std::string FScratch::ReadOutput(const std::string& Module, const std::string& File) const
{
	std::string Text;
	return HeaderTool::ReadFile(GetOutput(Module, File), Text) ? Text : "There is no " + File;
}

std::string ComplainAboutThing(const std::string& Text)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Public/Thing.h", ThingOpening + Text);
	Scratch.Run();
	return Scratch.GetComplaints();
}

std::string GenerateThing(const std::string& Text, const std::string& Output)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Public/Thing.h", ThingOpening + Text);
	return Scratch.Run() == 0 ? Scratch.ReadOutput("Sample", Output) : Scratch.GetComplaints();
}

std::string Complaint(int Line, const std::string& Text)
{
	return "Sample/Public/Thing.h(" + std::to_string(Line) + "): error: " + Text + "\n";
}

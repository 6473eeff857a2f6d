// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <filesystem>
#include <string>

/** A folder of its own for one test, with modules, a manifest and a way to run the tool on them. */
class FScratch
{
public:
	/** Makes an empty folder named after the running test. */
	FScratch();

	/** Removes the folder. */
	~FScratch();

	FScratch(const FScratch&) = delete;
	FScratch& operator=(const FScratch&) = delete;

	/** The folder. */
	const std::filesystem::path& GetRoot() const { return Root; }

	/** Adds a module to the manifest; its headers go below "<Root>/<Name>", its outputs below "<Root>/Out/<Name>". */
	void AddModule(const std::string& Name, const std::string& Type);

	/** Adds a module whose headers are elsewhere. */
	void AddModule(const std::string& Name, const std::string& Type, const std::filesystem::path& Directory);

	/** Writes a header below the last module's folder and lists it. */
	void AddHeader(const std::string& RelativePath, const std::string& Text);

	/** Lists a header of the last module that is there already. */
	void ListHeader(const std::string& RelativePath);

	/** Runs the tool; returns its exit code. */
	int Run();

	/** What the last run complained about, with paths relative to the folder. */
	const std::string& GetComplaints() const { return Complaints; }

	/** The path of an output of a module. */
	std::filesystem::path GetOutput(const std::string& Module, const std::string& File) const;

	/** The content of an output of a module. */
	std::string ReadOutput(const std::string& Module, const std::string& File) const;

private:
	std::filesystem::path Root;
	std::filesystem::path ModuleDirectory;
	std::string Manifest;
	std::string Complaints;
};

/** The lines that a header Public/Thing.h of a runtime module Sample has before its third. */
extern const char* const ThingOpening;

/** Runs the tool on Public/Thing.h with the opening and, from line 3 on, the text; returns what it complains about. */
std::string ComplainAboutThing(const std::string& Text);

/** Runs the tool on a correct Public/Thing.h with the opening and the text; returns an output, or the complaints. */
std::string GenerateThing(const std::string& Text, const std::string& Output);

/** The text of a complaint about Public/Thing.h, with its line end. */
std::string Complaint(int Line, const std::string& Text);

// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Diagnostics.h"
#include "Manifest.h"
#include "Model.h"
#include "TypeTable.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace HeaderTool
{

/** One run: reads all headers, resolves them together, writes what is generated. */
class FTool
{
public:
	/** Works on the modules of the manifest, which has to outlive the tool. */
	explicit FTool(const FManifest& InManifest);

	/** Reads and checks everything; complaints go to the diagnostics. */
	void Read();

	/** Writes all outputs, only what changes; returns how many files were written; throws FOutputError. */
	int Write() const;

	/** The complaints so far. */
	const FDiagnostics& GetDiagnostics() const { return Diagnostics; }

private:
	void AddHeader(const FModule& Module, const std::filesystem::path& Path);
	void CheckLeaf(const FHeader& Header);

	const FManifest& Manifest;
	FDiagnostics Diagnostics;
	FTypeTable Table;
	std::vector<std::unique_ptr<FHeader>> Headers;
};

/** Runs the tool on a manifest; returns the exit code: 0 done, 1 complaints about headers or outputs, 2 unusable manifest. */
int Run(const std::string& ManifestFile, std::ostream& Out, std::ostream& Err);

}

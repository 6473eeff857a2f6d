// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookGrader.h"

#include <OpenColorIO/OpenColorIO.h>

#include <cstddef>
#include <cstdint>

namespace LookPass
{
/** A look that OpenColorIO applies, tetrahedrally, in floats. */
class FLookPassGrader final : public LookGrading::ILookGrader
{
public:
	/** Takes a processor that works on packed red, green, blue, alpha in floats. */
	explicit FLookPassGrader(OCIO_NAMESPACE::ConstCPUProcessorRcPtr InProcessor);

	virtual void Grade(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, LookGrading::EByteOrder Order) const override;

private:
	void GradeRow(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, std::size_t Red) const;

	OCIO_NAMESPACE::ConstCPUProcessorRcPtr Processor;
};
}

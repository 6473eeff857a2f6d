// Copyright The Tintmill authors. All rights reserved.

#include "ViewportCapture.h"

#include <benchmark/benchmark.h>

#include <cstring>

// The conversion of a captured picture beside a plain copy of the same bytes between the same buffers.

namespace
{
struct FBuffers
{
	explicit FBuffers(const benchmark::State& State)
	{
		const int32 Count = static_cast<int32>(State.range(0) * State.range(1));
		Pixels.SetNumZeroed(Count);
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Pixels[Index] = FColor(static_cast<uint8>(Index), static_cast<uint8>(Index >> 8), static_cast<uint8>(Index >> 16), 0);
		}
		Bytes.SetNumZeroed(Count * 4);
	}

	TArray<FColor> Pixels;
	TArray<uint8> Bytes;
};

void CopyWithMemcpy(benchmark::State& State)
{
	FBuffers Buffers(State);
	for (auto _ : State)
	{
		std::memcpy(Buffers.Bytes.GetData(), Buffers.Pixels.GetData(), Buffers.Bytes.Num());
		benchmark::ClobberMemory();
	}
	State.SetBytesProcessed(State.iterations() * Buffers.Bytes.Num());
}

void WritePixels(benchmark::State& State)
{
	FBuffers Buffers(State);
	for (auto _ : State)
	{
		FViewportCapture::SwapRedAndBlue(Buffers.Pixels, Buffers.Bytes);
		benchmark::ClobberMemory();
	}
	State.SetBytesProcessed(State.iterations() * Buffers.Bytes.Num());
}

void Sizes(benchmark::internal::Benchmark* Benchmark)
{
	Benchmark->Args({1920, 1080})->Args({3840, 2160})->Repetitions(5)->ReportAggregatesOnly(true);
}

BENCHMARK(CopyWithMemcpy)->Apply(Sizes);
BENCHMARK(WritePixels)->Apply(Sizes);
}

# Thin over the CMake presets; `make help` lists what there is.

CLANG_FORMAT ?= clang-format
CLANG_TIDY ?= clang-tidy
PREFIX ?= /usr/local
# Seconds that `make fuzz` gives each target.
FUZZ_SECONDS ?= 60
JOBS ?= $(shell nproc)
SOURCES = $(shell git ls-files '*.h' '*.cpp')

.PHONY: help run test tour bench fuzz format lint install packages clean

help:
	@echo "make run      install what is missing, build, and open the application"
	@echo "make test     install what is missing, build, and run every test (also under sanitizers)"
	@echo "make tour     take the pictures of docs/images anew"
	@echo "make bench    run the benchmarks"
	@echo "make fuzz     run each fuzz target for FUZZ_SECONDS (default 60)"
	@echo "make format   format the sources"
	@echo "make lint     check format and clang-tidy"
	@echo "make install  install below PREFIX (default /usr/local); DESTDIR is honoured"
	@echo "make clean    remove everything that was built"

packages:
	@scripts/install-packages build test

run:
	@scripts/install-packages build
	@scripts/build release
	@scripts/open build/release/bin tintra-demo

test: packages
	@scripts/build release
	ctest --preset release
	@scripts/build sanitize
	ctest --preset sanitize

tour:
	@scripts/install-packages build
	@scripts/build release --target tintra_tour
	build/release/bin/tintra-tour docs/images

bench: packages
	@scripts/build release
	@scripts/build release --target benchmarks/all
	@benchmarks/run build/release

fuzz:
	@scripts/install-packages build fuzz
	@scripts/build fuzz
	@fuzz/run build/fuzz $(FUZZ_SECONDS)

format:
	@scripts/install-packages lint
	$(CLANG_FORMAT) -i $(SOURCES)

lint:
	@scripts/install-packages build test lint
	$(CLANG_FORMAT) --dry-run --Werror $(SOURCES)
	@scripts/build debug
	git ls-files '*.cpp' ':!fuzz' ':!benchmarks' | xargs -P $(JOBS) -n 4 $(CLANG_TIDY) --quiet -p build/debug

install:
	@scripts/install-packages build
	@scripts/build release
	cmake --install build/release --prefix $(PREFIX)

clean:
	rm -rf build tintra-demo

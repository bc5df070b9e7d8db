# The front door. CMake does the building (CMakePresets.json); this installs what is missing, runs what
# was built, and says what it does.

SHELL := /bin/bash
.SHELLFLAGS := -euo pipefail -c
.DEFAULT_GOAL := help
MAKEFLAGS += --no-print-directory

PREFIX ?= /usr/local
DESTDIR ?=
FUZZ_SECONDS ?= 60
# More arguments of the benchmark program, such as --benchmark_filter=import
BENCH_ARGUMENTS ?=

# Repetitions are shuffled, so that a burst of other work on the machine falls on all alike.
bench_settings = --benchmark_repetitions=15 --benchmark_min_time=0.05 \
	--benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true \
	--benchmark_out=build/bench/figures.json

say = @echo; echo "== $(1)"
configure = cmake --preset $(1) --log-level=WARNING
build = cmake --build --preset $(1)
test = ctest --preset $(1)

.PHONY: help
help:
	@echo "make run      build for Linux, and take a ticket all the way to a printer (start here)"
	@echo "make test     build for Linux and Windows, and run all tests: native, sanitizers, Wine"
	@echo "make windows  build for Windows x86-64 and x86, into build/windows-*/bin"
	@echo "make unit     after a change: build without optimisation, and run the tests of the library"
	@echo "make coverage tell for each folder of sources/ how many of its lines the tests reach"
	@echo "make bench    measure the library beside its floors and beside other libraries"
	@echo "make fuzz     let libFuzzer loose on the library, FUZZ_SECONDS=$(FUZZ_SECONDS) for each target"
	@echo "make fuzz-coverage  tell for each file how many of its lines the inputs of fuzzing reach"
	@echo "make check    format, clang-tidy, include rules"
	@echo "make install  install the Linux build to PREFIX=$(PREFIX) (DESTDIR goes in front)"
	@echo "make clean    remove build/"
	@echo
	@echo "Each installs the Debian packages that it needs and that are missing (tools/install-packages)."

.PHONY: native
native:
	$(call say,What the Linux build needs)
	@tools/install-packages native
	$(call say,Building for Linux into build/native/bin)
	@$(call configure,native) -DZENT_TESTS=OFF -DZENT_BENCHMARKS=OFF
	@$(call build,native)

.PHONY: run
run: native
	$(call say,A ticket through the library)
	@tools/demo build/native

.PHONY: windows
windows:
	$(call say,What the Windows builds need)
	@tools/install-packages windows
	$(call say,Building for Windows x86-64 into build/windows-x64/bin)
	@$(call configure,windows-x64) -DZENT_TESTS=OFF
	@$(call build,windows-x64)
	$(call say,Building for Windows x86 into build/windows-x86/bin)
	@$(call configure,windows-x86) -DZENT_TESTS=OFF
	@$(call build,windows-x86)

.PHONY: test
test:
	$(call say,What the tests need)
	@tools/install-packages native windows test bench
	$(call say,Linux)
	@$(call configure,native) -DZENT_TESTS=ON -DZENT_BENCHMARKS=ON
	@$(call build,native)
	@$(call test,native)
	$(call say,Linux under AddressSanitizer and UBSan)
	@$(call configure,sanitize)
	@$(call build,sanitize)
	@$(call test,sanitize)
	$(call say,Linux under ThreadSanitizer)
	@$(call configure,threads)
	@$(call build,threads)
	@$(call test,threads)
	$(call say,Windows x86)
	@$(call configure,windows-x86) -DZENT_TESTS=ON
	@$(call build,windows-x86)
	@tools/wine-session $(call test,windows-x86)
	$(call say,Windows x86-64 under Wine)
	@$(call configure,windows-x64) -DZENT_TESTS=ON
	@$(call build,windows-x64)
	@tools/wine-session $(call test,windows-x64)

.PHONY: unit
unit:
	$(call say,What the tests need)
	@tools/install-packages native test
	$(call say,Linux without optimisation into build/debug)
	@$(call configure,debug)
	@$(call build,debug)
	@ctest --preset unit

.PHONY: coverage
coverage:
	$(call say,What the coverage needs)
	@tools/install-packages native test coverage
	$(call say,Building the tests to count lines)
	@$(call configure,test-coverage)
	@$(call build,test-coverage)
	$(call say,Lines of sources/ that the tests reach)
	@tools/test-coverage build/test-coverage

.PHONY: bench
bench:
	$(call say,What the benchmarks need)
	@tools/install-packages native bench
	$(call say,Building the benchmarks)
	@$(call configure,bench)
	@$(call build,bench)
	$(call say,Benchmarks (all their figures: build/bench/figures.txt))
	@build/bench/bin/zent_benchmarks $(bench_settings) $(BENCH_ARGUMENTS) >build/bench/figures.txt
	@tools/bench-table build/bench/figures.json

.PHONY: fuzz
fuzz:
	$(call say,What the fuzz targets need)
	@tools/install-packages native fuzz
	$(call say,Building the fuzz targets)
	@$(call configure,fuzz)
	@$(call build,fuzz)
	@tools/run-fuzz build/fuzz $(FUZZ_SECONDS)

.PHONY: fuzz-coverage
fuzz-coverage:
	$(call say,What the coverage needs)
	@tools/install-packages native fuzz
	$(call say,Building the fuzz targets to count lines)
	@$(call configure,coverage)
	@$(call build,coverage)
	@tools/fuzz-coverage build/coverage

.PHONY: check
check:
	$(call say,What the checks need)
	@tools/install-packages native test check
	$(call say,Include rules)
	@tools/check-includes
	$(call say,Resource ids)
	@tools/check-ids
	$(call say,Format)
	@git ls-files --cached --others --exclude-standard '*.h' '*.cpp' '*.c' \
		| xargs clang-format --dry-run -Werror && echo "All sources are formatted"
	$(call say,clang-tidy)
	@$(call configure,debug)
	@tools/run-tidy build/debug

.PHONY: install
install: native
	$(call say,Installing to $(DESTDIR)$(PREFIX))
	@DESTDIR="$(DESTDIR)" cmake --install build/native --prefix "$(PREFIX)" --strip

.PHONY: clean
clean:
	$(call say,Removing build/)
	@rm -rf build

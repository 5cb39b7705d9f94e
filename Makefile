# Everything a person does with this tree. The first call of a target installs what it needs and what is missing.
.PHONY: help run test test-sanitized smoke device package device-test device-coverage lint format fuzz bench coverage clean

help:
	@echo "make run       build the program and open its window (without a display: a walk with pictures in out/)"
	@echo "make test      build, and run all tests: the desktop's, then the device's"
	@echo "make test-sanitized  the desktop's tests under the address and undefined-behaviour sanitizers"
	@echo "make smoke     handle the window from outside, on a virtual display, as a person does, by keyboard alone, and as assistive programs do"
	@echo "make device    build the bundle for the device, in build/device/corvexPrefs.bundle"
	@echo "make package   build the package that installs it, build/device/corvexprefs_VERSION_iphoneos-arm64.deb"
	@echo "make device-test  the device's tests alone: other programs read both; its half, and the bundle itself, run over another runtime"
	@echo "make device-coverage  report how much of the bundle's code its tests reach, and which functions they do not"
	@echo "make lint      check format, static analysis and the rules of the tree"
	@echo "make format    format all C++ files"
	@echo "make fuzz      run each fuzzer for SECONDS_EACH (default 600) seconds"
	@echo "make bench     measure every frame that moves, the start and the memory, painting a change against painting all, a long list against a short one, packing against bsdtar"
	@echo "make coverage  run all tests and report the lines and branches that they reach"
	@echo "make clean     remove everything that was built"

run:
	@tools/setup build
	@tools/run

test:
	@tools/setup build test device contract shipped
	@tools/test desktop device device-contract device-shipped

test-sanitized:
	@tools/setup build test sanitize
	@tools/test desktop-sanitize

smoke:
	@tools/setup build smoke
	@cmake --preset desktop >/dev/null
	@cmake --build --preset desktop -j 2 --target corvex-settings
	@tools/smoke build/desktop/bin/corvex-settings

device:
	@tools/setup build device
	@tools/device device_bundle

package:
	@tools/setup build device
	@tools/device device_package

device-test:
	@tools/setup build device contract shipped
	@tools/test device device-contract device-shipped

device-coverage:
	@tools/setup build device shipped
	@tools/device all
	@cmake --preset device-shipped >/dev/null
	@cmake --build --preset device-shipped -j 2 --target shipped_pane_test
	@tools/device-coverage

lint:
	@tools/setup build test device contract shipped fuzz lint
	@tools/lint

format:
	@tools/setup lint
	@git ls-files -co --exclude-standard -z '*.h' '*.cpp' | xargs -0 clang-format-22 -i

fuzz:
	@tools/setup build fuzz
	@tools/fuzz $${SECONDS_EACH:-600}

bench:
	@tools/setup build bench
	@cmake --preset desktop >/dev/null
	@cmake --build --preset desktop -j 2 --target bench_painting bench_frames bench_peer bench_program bench_long_list bench_archive
	@build/desktop/bench/bench_painting
	@build/desktop/bench/bench_frames
	@build/desktop/bench/bench_peer
	@build/desktop/bench/bench_program
	@build/desktop/bench/bench_long_list
	@build/desktop/bench/bench_archive

coverage:
	@tools/setup build test coverage
	@tools/coverage

clean:
	rm -rf build out

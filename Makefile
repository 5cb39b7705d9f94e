# Everything a person does with this tree. The first call of a target installs what it needs and what is missing.
.PHONY: help test lint format fuzz coverage clean

help:
	@echo "make test      build, and run all tests: plainly, then under the sanitizers"
	@echo "make lint      check format, static analysis, portability and the rules of the tree"
	@echo "make format    format all C++ files"
	@echo "make fuzz      run each fuzzer for SECONDS_EACH (default 600) seconds"
	@echo "make coverage  run all tests and report the lines and branches that they reach"
	@echo "make clean     remove everything that was built"

test:
	@tools/setup build
	@tools/test

lint:
	@tools/setup build lint
	@tools/lint

format:
	@tools/setup lint
	@git ls-files -co --exclude-standard -z '*.h' '*.cpp' | xargs -0 clang-format-22 -i

fuzz:
	@tools/setup build fuzz
	@tools/fuzz $${SECONDS_EACH:-600}

coverage:
	@tools/setup build coverage
	@tools/coverage

clean:
	rm -rf build out

# The two commands of a newcomer:
#   make run    install what is missing, build, start Pluvane on the example network
#   make test   install what is missing, build (normal and sanitizer builds), run every test
#   make install  the programs and their data under PREFIX (DESTDIR is honoured)
#   make package  a .deb of the same tree, in build/
#   make lint   clang-tidy on every source of src/
# WERROR=ON (make test WERROR=ON) makes every compiler warning an error, as in the CI.
JOBS ?= $(shell nproc)
EXAMPLE = Exemples/Demo.mtf
PREFIX ?= /usr/local
# ON: the compiler's warnings fail the build (the CI build sets it).
WERROR ?= OFF

.PHONY: run test deps build build-asan install package bench fuzz lint clean

run: build
	cd build/bin && ./pluvane $(EXAMPLE)

test: build build-asan
	QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure
	QT_QPA_PLATFORM=offscreen ctest --test-dir build-asan --output-on-failure

deps:
	@bash tools/install-deps.sh

build: deps
	@[ -f build/build.ninja ] || cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DPLUVANE_WERROR=$(WERROR)
	cmake --build build -j $(JOBS)

# The sanitizer build covers the core and the command line; the Qt programs are
# exercised by the normal build.
build-asan: deps
	@[ -f build-asan/build.ninja ] || cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug \
	  -DPLUVANE_SANITIZE=ON -DPLUVANE_BUILD_UI=OFF -DPLUVANE_BENCH=OFF -DPLUVANE_WERROR=$(WERROR)
	cmake --build build-asan -j $(JOBS)

install: build
	DESTDIR="$(DESTDIR)" cmake --install build --prefix "$(PREFIX)"

package: build
	cd build && cpack -G DEB

bench: build
	for b in build/bin/bench_*; do $$b; done

fuzz: deps
	@[ -f build-fuzz/build.ninja ] || CXX=clang++ cmake -S . -B build-fuzz -G Ninja \
	  -DCMAKE_BUILD_TYPE=RelWithDebInfo -DPLUVANE_FUZZ=ON -DPLUVANE_BUILD_UI=OFF -DPLUVANE_BENCH=OFF \
	  -DPLUVANE_WERROR=$(WERROR)
	cmake --build build-fuzz -j $(JOBS)

# clang-tidy reads the compile commands of build/ (configured, not built).
lint: deps
	@[ -f build/build.ninja ] || cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DPLUVANE_WERROR=$(WERROR)
	JOBS=$(JOBS) tools/lint.sh build

clean:
	rm -rf build build-asan build-fuzz

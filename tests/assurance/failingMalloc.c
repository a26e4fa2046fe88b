/*
 * Preloaded: of all that a program asks of malloc from its main on, the request number FAILING_MALLOC fails, and with
 * FAILING_MALLOC_ON all behind it. How many there were goes into the file FAILING_MALLOC_COUNT.
 */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

typedef int (*Main)(int, char**, char**);
typedef int (*Start)(Main, int, char**, void (*)(void), void (*)(void), void (*)(void), void*);

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* p, size_t size);
int __libc_start_main(Main, int, char**, void (*)(void), void (*)(void), void (*)(void), void*);

static Main program;
static int isRunning;
static int failsOn;
static unsigned long failing;
static unsigned long asked;

static int fails(void)
{
    if (!isRunning)
    {
        return 0;
    }
    ++asked;
    if (failing == 0 || asked < failing || (asked > failing && !failsOn))
    {
        return 0;
    }
    errno = ENOMEM;
    return 1;
}

void* malloc(size_t size)
{
    return fails() ? NULL : __libc_malloc(size);
}

void* calloc(size_t count, size_t size)
{
    return fails() ? NULL : __libc_calloc(count, size);
}

void* realloc(void* p, size_t size)
{
    return fails() ? NULL : __libc_realloc(p, size);
}

static int countedMain(int argc, char** argv, char** environment)
{
    const char* const number = getenv("FAILING_MALLOC");
    failing = number == NULL ? 0 : strtoul(number, NULL, 10);
    failsOn = getenv("FAILING_MALLOC_ON") != NULL;
    isRunning = 1;
    return program(argc, argv, environment);
}

__attribute__((destructor)) static void tell(void)
{
    const char* const path = getenv("FAILING_MALLOC_COUNT");
    char text[32];
    isRunning = 0;
    if (path != NULL)
    {
        const int file = open(path, O_WRONLY | O_CREAT | O_TRUNC, 0600);
        const int length = snprintf(text, sizeof text, "%lu\n", asked);
        if (file < 0 || write(file, text, (size_t)length) != length)
        {
            abort();
        }
        close(file);
    }
}

int __libc_start_main(Main main, int argc, char** argv, void (*init)(void), void (*fini)(void), void (*loader)(void),
                      void* end)
{
    Start start;
    *(void**)&start = dlsym(RTLD_NEXT, "__libc_start_main");
    program = main;
    return start(countedMain, argc, argv, init, fini, loader, end);
}

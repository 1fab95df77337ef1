// SPDX-License-Identifier: GPL-3.0-or-later
// Lies before the C library (LD_PRELOAD) and lets calls fail that change files below a folder, as a full or broken disk
// does. The environment says which: DISCO_CARTELLA names the folder, DISCO_GUASTO the call that fails, counted from 1
// (0: none), DISCO_POI all that follow it too. The number of calls is written to the file DISCO_CONTO at the end.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

static long fatte;

static int guasta(void) {
    const char* quale = getenv("DISCO_GUASTO");
    const long numero = quale ? atol(quale) : 0;
    ++fatte;
    return numero > 0 && (fatte == numero || (getenv("DISCO_POI") && fatte > numero));
}

static int dentro(const char* path) {
    const char* cartella = getenv("DISCO_CARTELLA");
    return cartella && path && strncmp(path, cartella, strlen(cartella)) == 0;
}

static int fd_dentro(int fd) {
    char nome[64], path[4096];
    snprintf(nome, sizeof nome, "/proc/self/fd/%d", fd);
    const ssize_t lungo = readlink(nome, path, sizeof path - 1);
    if (lungo < 0) return 0;
    path[lungo] = 0;
    return dentro(path);
}

__attribute__((destructor)) static void conta(void) {
    const char* dove = getenv("DISCO_CONTO");
    FILE* file = dove ? fopen(dove, "w") : NULL;
    if (!file) return;
    fprintf(file, "%ld\n", fatte);
    fclose(file);
}

#define VERA(nome) ((__typeof__(&nome))dlsym(RTLD_NEXT, #nome))
#define RIFIUTA(prova, errore) \
    if ((prova) && guasta()) { \
        errno = errore;        \
        return -1;             \
    }

#define CON_FD(tipo, nome, parametri, errore, ...) \
    tipo nome parametri {                          \
        RIFIUTA(fd_dentro(fd), errore)             \
        return VERA(nome)(__VA_ARGS__);            \
    }
CON_FD(ssize_t, write, (int fd, const void* b, size_t n), ENOSPC, fd, b, n)
CON_FD(ssize_t, writev, (int fd, const struct iovec* b, int n), ENOSPC, fd, b, n)
CON_FD(ssize_t, pwrite, (int fd, const void* b, size_t n, off_t o), ENOSPC, fd, b, n, o)
CON_FD(ssize_t, pwrite64, (int fd, const void* b, size_t n, off64_t o), ENOSPC, fd, b, n, o)
CON_FD(int, ftruncate, (int fd, off_t n), EIO, fd, n)
CON_FD(int, ftruncate64, (int fd, off64_t n), EIO, fd, n)
CON_FD(int, fsync, (int fd), EIO, fd)
CON_FD(int, fdatasync, (int fd), EIO, fd)

#define CON_PATH(nome, parametri, path, ...) \
    int nome parametri {                     \
        RIFIUTA(dentro(path), EIO)           \
        return VERA(nome)(__VA_ARGS__);      \
    }
CON_PATH(unlink, (const char* a), a, a)
CON_PATH(mkdir, (const char* a, mode_t m), a, a, m)
CON_PATH(rename, (const char* a, const char* b), b, a, b)
CON_PATH(link, (const char* a, const char* b), b, a, b)
CON_PATH(renameat, (int x, const char* a, int y, const char* b), b, x, a, y, b)
CON_PATH(renameat2, (int x, const char* a, int y, const char* b, unsigned f), b, x, a, y, b, f)
CON_PATH(linkat, (int x, const char* a, int y, const char* b, int f), b, x, a, y, b, f)

#define APRE(nome)                                                                     \
    int nome(const char* path, int modo, ...) {                                        \
        va_list resto;                                                                 \
        va_start(resto, modo);                                                         \
        const mode_t diritti = va_arg(resto, mode_t);                                  \
        va_end(resto);                                                                 \
        RIFIUTA((modo & (O_CREAT | O_TMPFILE) & ~O_DIRECTORY) && dentro(path), ENOSPC) \
        return VERA(nome)(path, modo, diritti);                                        \
    }
APRE(open)
APRE(open64)

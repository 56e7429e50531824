/* Preloaded into a process (LD_PRELOAD), numbers its file system calls and makes the chosen one fail.

   TAVMOOR_FAULT_BELOW    folders, parted by colons: only calls on paths below them are numbered
   TAVMOOR_FAULT_TRACE    a file that takes a line for each of them: number, class, function, path
                          (of a rename both), and "!" where the fault came, parted by tabs
   TAVMOOR_FAULT_CALL     the number of the call, from 1 on, that the fault comes at
   TAVMOOR_FAULT_KIND     "error N" (errno), "short" (half of a read, write or copy), "before N" or
                          "after N" (the process sends itself signal N)
   TAVMOOR_FAULT_LASTING  set: all later calls have the fault as well
   TAVMOOR_FAULT_CLASSES  classes that have the fault, parted by commas; all where it is missing

   The C library's calls of its own do not come by here, so that functions such as fopen, opendir and
   mkdtemp are numbered themselves. */
#define _GNU_SOURCE
#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

enum call_class { OPEN, CREATE, READ, WRITE, SYNC, CLOSE, RENAME, UNLINK, MKDIR,
                  STAT, DIRECTORY, SPACE, COPY, LINK, MODE, LOCK };
static const char* const class_names[] = {
    "open", "create", "read", "write", "sync", "close", "rename", "unlink",
    "mkdir", "stat", "dir", "space", "copy", "link", "mode", "lock"};

enum fault { NONE, ERROR, SHORT, BEFORE, AFTER };

/* What a call is about: a path from a folder's descriptor on, or with an empty path that descriptor
   itself, and a second one for calls that have two. */
struct place {
    int folder;
    const char* path;
    int other_folder;
    const char* other;
};

static struct place at(int folder, const char* path) {
    return (struct place){folder, path, 0, NULL};
}

static struct place both(int folder, const char* path, int other_folder, const char* other) {
    return (struct place){folder, path, other_folder, other};
}

static struct place of(int file) {
    return at(file, "");
}

static bool working;
static char watched[4 * PATH_MAX];
static unsigned faulty_classes = ~0U;
static unsigned long faulty_call;
static bool lasting;
static enum fault fault_kind;
static int fault_number; /* an errno or a signal */
static int trace_file = -1;
static atomic_ulong calls;

static unsigned classes_named(char* names) {
    unsigned set = 0;
    for (char* name = strtok(names, ","); name != NULL; name = strtok(NULL, ",")) {
        for (unsigned i = 0; i < sizeof class_names / sizeof *class_names; ++i) {
            set |= strcmp(name, class_names[i]) == 0 ? 1U << i : 0U;
        }
    }
    return set;
}

static enum fault kind_named(const char* name) {
    return strcmp(name, "error") == 0    ? ERROR
           : strcmp(name, "short") == 0  ? SHORT
           : strcmp(name, "before") == 0 ? BEFORE
           : strcmp(name, "after") == 0  ? AFTER
                                         : NONE;
}

__attribute__((constructor)) static void configure(void) {
    const char* value = getenv("TAVMOOR_FAULT_BELOW");
    snprintf(watched, sizeof watched, "%s", value != NULL ? value : "");
    char kind[16] = "";
    if ((value = getenv("TAVMOOR_FAULT_KIND")) != NULL &&
        sscanf(value, "%15s %d", kind, &fault_number) > 0) {
        fault_kind = kind_named(kind);
    }
    if ((value = getenv("TAVMOOR_FAULT_CALL")) != NULL) {
        faulty_call = strtoul(value, NULL, 10);
    }
    lasting = getenv("TAVMOOR_FAULT_LASTING") != NULL;
    if ((value = getenv("TAVMOOR_FAULT_CLASSES")) != NULL) {
        char names[256];
        snprintf(names, sizeof names, "%s", value);
        faulty_classes = classes_named(names);
    }
    if ((value = getenv("TAVMOOR_FAULT_TRACE")) != NULL) {
        const int file = open(value, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
        trace_file = fcntl(file, F_DUPFD_CLOEXEC, 500); /* the process keeps the numbers it knows */
        close(file);
    }
    working = true;
}

static void find(void* function, const char* name) {
    void* found = dlsym(RTLD_NEXT, name);
    memcpy(function, &found, sizeof found);
}

/* The absolute path, by its text: links and dots in it stay. */
static void resolve(int folder, const char* path, char* resolved, size_t size) {
    char start[PATH_MAX] = "";
    if (path[0] != '/' && folder == AT_FDCWD) {
        syscall(SYS_getcwd, start, sizeof start);
    } else if (path[0] != '/') {
        char link[64];
        snprintf(link, sizeof link, "/proc/self/fd/%d", folder);
        const long length = syscall(SYS_readlinkat, AT_FDCWD, link, start, sizeof start - 1);
        start[length < 0 ? 0 : length] = '\0';
    }
    snprintf(resolved, size, "%s%s%s", start, *start != '\0' && *path != '\0' ? "/" : "", path);
}

static bool is_watched(const char* path) {
    for (const char* folder = watched; *folder != '\0';) {
        const size_t length = strcspn(folder, ":");
        if (strncmp(path, folder, length) == 0 && (path[length] == '/' || path[length] == '\0')) {
            return true;
        }
        folder += length + (folder[length] == ':' ? 1 : 0);
    }
    return *watched == '\0';
}

/* Numbers the call and tells what is to become of it. */
static enum fault begin(enum call_class class, const char* function, struct place place) {
    if (!working) {
        return NONE;
    }
    const int kept = errno; /* readdir tells its end from an error by it */
    enum fault fault = NONE;
    char path[2 * PATH_MAX];
    char other[2 * PATH_MAX] = "";
    resolve(place.folder, place.path, path, sizeof path);
    if (place.other != NULL) {
        resolve(place.other_folder, place.other, other, sizeof other);
    }
    if (is_watched(path) || (*other != '\0' && is_watched(other))) {
        const unsigned long number = atomic_fetch_add(&calls, 1) + 1;
        if ((number == faulty_call || (lasting && faulty_call != 0 && number > faulty_call)) &&
            (faulty_classes >> class & 1U) != 0) {
            fault = fault_kind;
        }
        if (trace_file >= 0) {
            dprintf(trace_file, "%lu\t%s\t%s\t%s\t%s\t%s\n", number, class_names[class], function,
                    path, other, fault != NONE ? "!" : "");
        }
        if (fault == BEFORE) {
            raise(fault_number);
        }
    }
    errno = kept;
    return fault;
}

static void end(enum fault fault) {
    if (fault == AFTER) {
        raise(fault_number);
    }
}

static size_t half_of(enum fault fault, size_t count) {
    return fault == SHORT && count > 1 ? count / 2 : count;
}

/* Defines `name` anew. A close that fails has closed all the same. `prepare` may change the
   arguments. */
#define INTERPOSE_PREPARED(type, name, parameters, arguments, class, place, failed, prepare)       \
    type name parameters {                                                                         \
        static __typeof__(&name) real;                                                             \
        find(&real, #name);                                                                        \
        const enum fault fault = begin(class, #name, place);                                       \
        prepare;                                                                                   \
        if (fault == ERROR) {                                                                      \
            if ((class) == CLOSE) {                                                                \
                (void)real arguments;                                                              \
            }                                                                                      \
            errno = fault_number;                                                                  \
            return failed;                                                                         \
        }                                                                                          \
        type result = real arguments;                                                              \
        end(fault);                                                                                \
        return result;                                                                             \
    }
#define INTERPOSE(type, name, parameters, arguments, class, place, failed)                         \
    INTERPOSE_PREPARED(type, name, parameters, arguments, class, place, failed, (void)0)
#define INTERPOSE_COUNTED(name, parameters, arguments, class, place)                               \
    INTERPOSE_PREPARED(ssize_t, name, parameters, arguments, class, place, -1,                     \
                       count = half_of(fault, count))
/* The same function under the name for large files as well. */
#define INTERPOSE_64(type, name, parameters, arguments, class, place, failed)                      \
    INTERPOSE(type, name, parameters, arguments, class, place, failed)                             \
    INTERPOSE(type, name##64, parameters, arguments, class, place, failed)
#define INTERPOSE_COUNTED_64(name, parameters, arguments, class, place)                            \
    INTERPOSE_COUNTED(name, parameters, arguments, class, place)                                   \
    INTERPOSE_COUNTED(name##64, parameters, arguments, class, place)

static bool creates(int flags) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

#define INTERPOSE_OPEN(name, parameters, arguments, place)                                         \
    INTERPOSE_PREPARED(int, name, parameters, arguments,                                           \
                       (creates(flags) || (flags & O_TRUNC) != 0 ? CREATE : OPEN), place, -1,      \
                       va_list more; va_start(more, flags);                                        \
                       const mode_t mode = creates(flags) ? va_arg(more, mode_t) : 0;              \
                       va_end(more))
INTERPOSE_OPEN(open, (const char* path, int flags, ...), (path, flags, mode), at(AT_FDCWD, path))
INTERPOSE_OPEN(open64, (const char* path, int flags, ...), (path, flags, mode), at(AT_FDCWD, path))
INTERPOSE_OPEN(openat, (int folder, const char* path, int flags, ...), (folder, path, flags, mode),
               at(folder, path))
INTERPOSE_OPEN(openat64, (int folder, const char* path, int flags, ...),
               (folder, path, flags, mode), at(folder, path))
INTERPOSE_64(int, creat, (const char* path, mode_t mode), (path, mode), CREATE,
             at(AT_FDCWD, path), -1)
INTERPOSE_64(FILE*, fopen, (const char* path, const char* mode), (path, mode),
             (strchr(mode, 'w') != NULL || strchr(mode, 'a') != NULL ? CREATE : OPEN),
             at(AT_FDCWD, path), NULL)
INTERPOSE_64(int, mkstemp, (char* path), (path), CREATE, at(AT_FDCWD, path), -1)
INTERPOSE_64(int, mkostemp, (char* path, int flags), (path, flags), CREATE, at(AT_FDCWD, path), -1)

INTERPOSE_COUNTED(read, (int file, void* bytes, size_t count), (file, bytes, count), READ,
                  of(file))
INTERPOSE_COUNTED_64(pread, (int file, void* bytes, size_t count, off_t offset),
                     (file, bytes, count, offset), READ, of(file))
INTERPOSE(ssize_t, readv, (int file, const struct iovec* parts, int count), (file, parts, count),
          READ, of(file), -1)
INTERPOSE_COUNTED(write, (int file, const void* bytes, size_t count), (file, bytes, count), WRITE,
                  of(file))
INTERPOSE_COUNTED_64(pwrite, (int file, const void* bytes, size_t count, off_t offset),
                     (file, bytes, count, offset), WRITE, of(file))
/* Short: the first part alone, and half of that where there is no second. */
INTERPOSE_PREPARED(ssize_t, writev, (int file, const struct iovec* parts, int count),
                   (file, parts, count), WRITE, of(file), -1, struct iovec half;
                   if (fault == SHORT && count > 0) {
                       half = parts[0];
                       half.iov_len = count > 1 ? half.iov_len : half_of(fault, half.iov_len);
                       parts = &half;
                       count = 1;
                   })

INTERPOSE(int, fsync, (int file), (file), SYNC, of(file), -1)
INTERPOSE(int, fdatasync, (int file), (file), SYNC, of(file), -1)
INTERPOSE(int, syncfs, (int file), (file), SYNC, of(file), -1)
INTERPOSE(int, close, (int file), (file), CLOSE, of(file), -1)
INTERPOSE(int, fclose, (FILE * file), (file), CLOSE, of(fileno(file)), EOF)

INTERPOSE(int, rename, (const char* from, const char* to), (from, to), RENAME,
          both(AT_FDCWD, from, AT_FDCWD, to), -1)
INTERPOSE(int, renameat, (int from_folder, const char* from, int to_folder, const char* to),
          (from_folder, from, to_folder, to), RENAME, both(from_folder, from, to_folder, to), -1)
INTERPOSE(int, renameat2,
          (int from_folder, const char* from, int to_folder, const char* to, unsigned flags),
          (from_folder, from, to_folder, to, flags), RENAME,
          both(from_folder, from, to_folder, to), -1)

INTERPOSE(int, unlink, (const char* path), (path), UNLINK, at(AT_FDCWD, path), -1)
INTERPOSE(int, unlinkat, (int folder, const char* path, int flags), (folder, path, flags), UNLINK,
          at(folder, path), -1)
INTERPOSE(int, rmdir, (const char* path), (path), UNLINK, at(AT_FDCWD, path), -1)
INTERPOSE(int, remove, (const char* path), (path), UNLINK, at(AT_FDCWD, path), -1)

INTERPOSE(int, mkdir, (const char* path, mode_t mode), (path, mode), MKDIR, at(AT_FDCWD, path), -1)
INTERPOSE(int, mkdirat, (int folder, const char* path, mode_t mode), (folder, path, mode), MKDIR,
          at(folder, path), -1)
INTERPOSE(char*, mkdtemp, (char* path), (path), MKDIR, at(AT_FDCWD, path), NULL)

#define INTERPOSE_STAT(suffix)                                                                     \
    INTERPOSE(int, stat##suffix, (const char* path, struct stat##suffix* entry), (path, entry),    \
              STAT, at(AT_FDCWD, path), -1)                                                        \
    INTERPOSE(int, lstat##suffix, (const char* path, struct stat##suffix* entry), (path, entry),   \
              STAT, at(AT_FDCWD, path), -1)                                                        \
    INTERPOSE(int, fstat##suffix, (int file, struct stat##suffix* entry), (file, entry), STAT,     \
              of(file), -1)                                                                        \
    INTERPOSE(int, fstatat##suffix,                                                                \
              (int folder, const char* path, struct stat##suffix* entry, int flags),               \
              (folder, path, entry, flags), STAT, at(folder, path), -1)                            \
    INTERPOSE(int, statvfs##suffix, (const char* path, struct statvfs##suffix* room),              \
              (path, room), STAT, at(AT_FDCWD, path), -1)                                          \
    INTERPOSE(int, fstatvfs##suffix, (int file, struct statvfs##suffix* room), (file, room), STAT, \
              of(file), -1)
INTERPOSE_STAT()
INTERPOSE_STAT(64)
INTERPOSE(int, statx,
          (int folder, const char* path, int flags, unsigned mask, struct statx* entry),
          (folder, path, flags, mask, entry), STAT, at(folder, path), -1)
INTERPOSE(int, access, (const char* path, int mode), (path, mode), STAT, at(AT_FDCWD, path), -1)
INTERPOSE(int, faccessat, (int folder, const char* path, int mode, int flags),
          (folder, path, mode, flags), STAT, at(folder, path), -1)
INTERPOSE(ssize_t, readlink, (const char* path, char* target, size_t size), (path, target, size),
          STAT, at(AT_FDCWD, path), -1)
INTERPOSE(ssize_t, readlinkat, (int folder, const char* path, char* target, size_t size),
          (folder, path, target, size), STAT, at(folder, path), -1)
INTERPOSE(char*, realpath, (const char* path, char* resolved), (path, resolved), STAT,
          at(AT_FDCWD, path), NULL)

INTERPOSE(DIR*, opendir, (const char* path), (path), DIRECTORY, at(AT_FDCWD, path), NULL)
INTERPOSE(DIR*, fdopendir, (int file), (file), DIRECTORY, of(file), NULL)
INTERPOSE(struct dirent*, readdir, (DIR * folder), (folder), DIRECTORY, of(dirfd(folder)), NULL)
INTERPOSE(struct dirent64*, readdir64, (DIR * folder), (folder), DIRECTORY, of(dirfd(folder)),
          NULL)

INTERPOSE_64(int, truncate, (const char* path, off_t length), (path, length), SPACE,
             at(AT_FDCWD, path), -1)
INTERPOSE_64(int, ftruncate, (int file, off_t length), (file, length), SPACE, of(file), -1)
INTERPOSE_64(int, fallocate, (int file, int mode, off_t offset, off_t length),
             (file, mode, offset, length), SPACE, of(file), -1)
INTERPOSE_64(int, posix_fallocate, (int file, off_t offset, off_t length), (file, offset, length),
             SPACE, of(file), fault_number)

INTERPOSE_COUNTED_64(sendfile, (int out, int in, off_t* offset, size_t count),
                     (out, in, offset, count), COPY, both(out, "", in, ""))
INTERPOSE_COUNTED(copy_file_range,
                  (int in, off64_t* from, int out, off64_t* to, size_t count, unsigned flags),
                  (in, from, out, to, count, flags), COPY, both(out, "", in, ""))

INTERPOSE(int, link, (const char* from, const char* to), (from, to), LINK,
          both(AT_FDCWD, from, AT_FDCWD, to), -1)
INTERPOSE(int, linkat,
          (int from_folder, const char* from, int to_folder, const char* to, int flags),
          (from_folder, from, to_folder, to, flags), LINK, both(from_folder, from, to_folder, to),
          -1)
INTERPOSE(int, symlink, (const char* target, const char* path), (target, path), LINK,
          at(AT_FDCWD, path), -1)
INTERPOSE(int, symlinkat, (const char* target, int folder, const char* path),
          (target, folder, path), LINK, at(folder, path), -1)

INTERPOSE(int, chmod, (const char* path, mode_t mode), (path, mode), MODE, at(AT_FDCWD, path), -1)
INTERPOSE(int, fchmod, (int file, mode_t mode), (file, mode), MODE, of(file), -1)
INTERPOSE(int, fchmodat, (int folder, const char* path, mode_t mode, int flags),
          (folder, path, mode, flags), MODE, at(folder, path), -1)
INTERPOSE(int, chown, (const char* path, uid_t owner, gid_t group), (path, owner, group), MODE,
          at(AT_FDCWD, path), -1)
INTERPOSE(int, fchown, (int file, uid_t owner, gid_t group), (file, owner, group), MODE, of(file),
          -1)
INTERPOSE(int, fchownat, (int folder, const char* path, uid_t owner, gid_t group, int flags),
          (folder, path, owner, group, flags), MODE, at(folder, path), -1)

INTERPOSE(int, flock, (int file, int operation), (file, operation), LOCK, of(file), -1)
INTERPOSE_64(int, lockf, (int file, int command, off_t length), (file, command, length), LOCK,
             of(file), -1)

static bool is_lock(int command) {
    return command == F_SETLK || command == F_SETLKW || command == F_GETLK ||
           command == F_OFD_SETLK || command == F_OFD_SETLKW || command == F_OFD_GETLK;
}

#define INTERPOSE_FCNTL(name)                                                                      \
    int name(int file, int command, ...) {                                                         \
        static __typeof__(&name) real;                                                             \
        find(&real, #name);                                                                        \
        va_list more;                                                                              \
        va_start(more, command);                                                                   \
        void* argument = va_arg(more, void*);                                                      \
        va_end(more);                                                                              \
        const enum fault fault = is_lock(command) ? begin(LOCK, #name, of(file)) : NONE;           \
        if (fault == ERROR) {                                                                      \
            errno = fault_number;                                                                  \
            return -1;                                                                             \
        }                                                                                          \
        const int result = real(file, command, argument);                                          \
        end(fault);                                                                                \
        return result;                                                                             \
    }
INTERPOSE_FCNTL(fcntl)
INTERPOSE_FCNTL(fcntl64)

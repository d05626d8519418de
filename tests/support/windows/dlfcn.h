// Libraries that are opened at run time, over Windows' own. See posix.cpp.
#pragma once

enum { RTLD_LOCAL = 0, RTLD_NOW = 2 };

struct Dl_info {
    const char *dli_fname;
};

void *dlopen(const char *path, int flags);
void *dlsym(void *library, const char *name);
int dlclose(void *library);
const char *dlerror();
int dladdr(const void *address, Dl_info *info); // 0 where it lies in no library

// The extension module `vonkk3._core`: loads the library file and makes numpy's ufunc objects of the operations.
#define PY_SSIZE_T_CLEAN
#define NPY_NO_DEPRECATED_API NPY_1_20_API_VERSION
#include <Python.h>

#include <numpy/ndarrayobject.h>
#include <numpy/ufuncobject.h>

#include "export_table.h"
#include "loops.h"

#include <dlfcn.h>

namespace vonkk3 {

void reportNoMemory() {
    const PyGILState_STATE state = PyGILState_Ensure();
    PyErr_NoMemory();
    PyGILState_Release(state);
}

void reportInPlace() {
    const PyGILState_STATE state = PyGILState_Ensure();
    PyErr_SetString(PyExc_ValueError, "out is an operand whose objects lie differently: pass a copy of the operand");
    PyGILState_Release(state);
}

namespace {

struct LibVersion { // VonkLibVersion
    std::int32_t versionMajor, versionMinor, buildMajor, buildNumber;
    char cpuTag[4];
    const char *libraryName, *versionText, *buildDateText;
};

// load(path): takes all exports from the library file; returns its version as (major, minor, text).
PyObject *load(PyObject *, PyObject *argument) {
    PyObject *path = nullptr;
    if (!PyUnicode_FSConverter(argument, &path)) return nullptr;
    void *const library = dlopen(PyBytes_AS_STRING(path), RTLD_NOW | RTLD_LOCAL);
    Py_DECREF(path);
    if (library == nullptr) return PyErr_Format(PyExc_ImportError, "the library cannot be loaded: %s", dlerror());
    void *found[exportCount];
    for (int i = 0; i < exportCount; ++i)
        if ((found[i] = dlsym(library, exportNames[i])) == nullptr)
            return PyErr_Format(PyExc_ImportError, "%R is not a fitting library: %s", argument, dlerror());
    const auto version = reinterpret_cast<const LibVersion *(*)()>(dlsym(library, "vonkGetLibVersion"));
    if (version == nullptr)
        return PyErr_Format(PyExc_ImportError, "%R is not a fitting library: %s", argument, dlerror());
    std::copy(found, found + exportCount, addresses);
    const LibVersion *const it = version();
    return Py_BuildValue("(iis)", it->versionMajor, it->versionMinor, it->versionText);
}

// levels(): what the processor has, best first.
PyObject *levels(PyObject *, PyObject *) {
    PyObject *const list = PyList_New(0);
    if (list == nullptr) return nullptr;
    const auto add = [&](const char *name) {
        PyObject *const text = PyUnicode_FromString(name);
        const bool done = text != nullptr && PyList_Append(list, text) == 0;
        Py_XDECREF(text);
        return done;
    };
    __builtin_cpu_init();
    if ((__builtin_cpu_supports("x86-64-v4") && !add("x86-64-v4")) ||
        (__builtin_cpu_supports("x86-64-v3") && !add("x86-64-v3")) || !add("x86-64")) {
        Py_DECREF(list);
        return nullptr;
    }
    return list;
}

// failures(): objects that failed in this thread since it was asked last.
PyObject *failed(PyObject *, PyObject *) { return PyLong_FromSsize_t(takeFailures()); }

char typeNumber(char type, int element) {
    if (type == 'u') return NPY_UINT32;
    if (type == 's') return NPY_INT32;
    return static_cast<char>(element);
}

// What numpy keeps pointers to for as long as the ufunc lives, which is the process's life.
struct Loops {
    PyUFuncGenericFunction functions[2];
    void *data[2];
    char types[16];
};

PyObject *makeUfunc(const Operation &operation, const char *documentation) {
    auto *const loops = new Loops{{reinterpret_cast<PyUFuncGenericFunction>(operation.float32),
                                   reinterpret_cast<PyUFuncGenericFunction>(operation.float64)},
                                  {},
                                  {}};
    const int operands = operation.inputs + operation.outputs;
    for (int i = 0; i < operands; ++i) {
        loops->types[i] = typeNumber(operation.types[i], NPY_FLOAT32);
        loops->types[operands + i] = typeNumber(operation.types[i], NPY_FLOAT64);
    }
    // Messages name the function that calls it: a leading underscore is for the package alone.
    const char *const name = operation.name + (operation.name[0] == '_');
    return PyUFunc_FromFuncAndDataAndSignature(loops->functions, loops->data, loops->types, 2, operation.inputs,
                                               operation.outputs, PyUFunc_None, name, documentation, 0,
                                               operation.signature);
}

// ufuncs(documentation): a dictionary of all operations by name; `documentation` has their texts.
PyObject *ufuncs(PyObject *, PyObject *documentation) {
    if (!PyDict_Check(documentation)) return PyErr_Format(PyExc_TypeError, "a dictionary is expected");
    PyObject *const result = PyDict_New();
    for (const Operation &operation : operations()) {
        if (result == nullptr) return nullptr;
        PyObject *const text = PyDict_GetItemString(documentation, operation.name);
        Py_XINCREF(text); // for good: numpy keeps the pointer
        const char *const characters = text != nullptr ? PyUnicode_AsUTF8(text) : "";
        PyObject *const ufunc = characters != nullptr ? makeUfunc(operation, characters) : nullptr;
        const bool done = ufunc != nullptr && PyDict_SetItemString(result, operation.name, ufunc) == 0;
        Py_XDECREF(ufunc);
        if (!done) {
            Py_DECREF(result);
            return nullptr;
        }
    }
    return result;
}

PyMethodDef methods[] = {
    {"load", load, METH_O, "Loads a library file; returns (major, minor, text) of its version."},
    {"levels", levels, METH_NOARGS, "Instruction sets of the processor, best first."},
    {"failures", failed, METH_NOARGS, "Objects that failed in this thread since the last call."},
    {"ufuncs", ufuncs, METH_O, "A dictionary of the operations as ufunc objects."},
    {nullptr, nullptr, 0, nullptr},
};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "vonkk3._core", nullptr, -1, methods, nullptr, nullptr, nullptr, nullptr};

} // namespace

} // namespace vonkk3

PyMODINIT_FUNC PyInit__core() {
    import_array();
    import_umath();
    return PyModule_Create(&vonkk3::definition);
}

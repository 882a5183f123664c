/* clang-format off */
/* Quor Conversions for C, and for every language that can call C.
 * Made by component/generate from members.txt and quor.h.in: change those.
 *
 *  1. Objects are handles, numbers of 64 bits; 0 is none. One object has one handle, however often and by whichever
 *     way it is given out: handles are compared by ==. Every handle that a function gives out is one reference, which
 *     the caller gives back with quor_release; quor_add_ref takes one more. An object lives as long as it has
 *     references, here or inside the library. A handle that was never given out, or was released, is error 91.
 *  2. Every function returns 0, or the number of an error, and then quor_last_error of the thread tells more. Nothing
 *     is given out then. The result is the last parameter; it may be NULL where it is not wanted.
 *  3. Text is UTF-8 with its size in bytes (quor_text); what is not UTF-8 is error 5. A text that goes in stays the
 *     caller's. A text that comes out is the caller's to free with quor_text_free; a zero byte stands behind it,
 *     which its size does not count. Texts of quor_error, quor_message and quor_file_request are the library's.
 *  4. A property P is get_P and put_P, with its indices before its value; a call has its own name. An in/out
 *     reference is one parameter: what it holds when the call begins and when it ends is one reference of the caller
 *     (a reference that the call exchanges is released by it); NULL means none. An in/out text is two: the text that
 *     goes in, and the text that comes out. An in/out number is one, which must not be NULL.
 *  5. Booleans have 16 bits and True is -1; any value but 0 is taken as True. Counts have 16 bits, enumerations and
 *     indices 32. An enumeration takes any value of 32 bits. A name function takes -2 for the current value.
 *  6. A handle is used in one thread at a time, and objects that hold each other (a conversion, its settings, their
 *     ranges, a registry, a platform) count as one. Objects that do not know each other are free in any two threads.
 *     The help file is one for the process. quor_add_ref, quor_release and quor_last_error are free in all.
 *  7. What a host offers is a table of functions and a pointer `user` for it. Its first field is its size, so that
 *     tables can grow; a function that is NULL does what its comment says. A function returns 0 or the number of an
 *     error, which travels through the library as if it were its own; quor_set_error gives it words. It gives a text
 *     by quor_answer before it returns. It may call everything here; it must not throw or jump out. The table is
 *     copied; `destroyed` is called once, when the library needs `user` no more.
 *  8. Functions, fields and values are added at the end; none changes its meaning.
 */
#ifndef QUOR_H
#define QUOR_H

/* NOLINTBEGIN: this is C */
#include <stddef.h>
#include <stdint.h>
#include <string.h>

#if defined(_WIN32) && !defined(QUORCOMPONENT_STATIC_DEFINE)
#ifdef QuorComponent_EXPORTS
#define QUOR_API __declspec(dllexport)
#else
#define QUOR_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define QUOR_API __attribute__((visibility("default")))
#else
#define QUOR_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef int16_t quor_bool; /* True is -1 */

/* ---- Texts ------------------------------------------------------------------------------------------------------ */

typedef struct quor_text {
    const char* bytes; /* may be NULL when size is 0 */
    size_t size;
} quor_text;

/* A text of C, up to its zero byte; NULL is the empty text. */
static inline quor_text quor_text_of(const char* text) {
    quor_text result;
    result.bytes = text;
    result.size = text ? strlen(text) : 0;
    return result;
}

/* Numbers that belong to the object which has given them out; they live as long as it does. */
typedef struct quor_int32s {
    const int32_t* values; /* NULL when there are none */
    size_t size;           /* how many */
} quor_int32s;
typedef struct quor_doubles {
    const double* values;
    size_t size;
} quor_doubles;

/* Frees a text that the library has given out, and empties it. NULL and the empty text need nothing. */
QUOR_API void quor_text_free(quor_text* text);

/* ---- Errors ----------------------------------------------------------------------------------------------------- */

/* Numbers of this interface; the object that was called has others (53 file not found, 61 disk full, ...). */
enum {
    QUOR_OK = 0,
    QUOR_ERROR_ARGUMENT = 5,             /* text that is not UTF-8, a NULL where something must stand */
    QUOR_ERROR_OVERFLOW = 6,             /* a number that the type of the parameter does not hold */
    QUOR_ERROR_OUT_OF_MEMORY = 7,
    QUOR_ERROR_SUBSCRIPT = 9,            /* a negative count; an index that no list of a dialog has */
    QUOR_ERROR_TYPE = 13,                /* an object of another class, a value of another kind */
    QUOR_ERROR_NO_OBJECT = 91,           /* no handle, a released one, or one of a dialog that has ended */
    QUOR_ERROR_WRITE_ONLY = 394,
    QUOR_ERROR_READ_ONLY = 383,
    QUOR_ERROR_CANNOT_CREATE = 429,      /* no such class, or none that a host makes */
    QUOR_ERROR_NO_MEMBER = 438,          /* no such name, no such number, or not that kind */
    QUOR_ERROR_ARGUMENT_COUNT = 450,
    QUOR_ERROR_INDEX = -2147221003,      /* 0x800401F5 "Index out of range" */
    QUOR_ERROR_RANGE = -2147221002,      /* 0x800401F6 "ITS-90 range out of range." */
    QUOR_ERROR_UNEXPECTED = -2147467259  /* 0x80004005 */
};

typedef struct quor_error {
    int32_t number; /* 0 when no function has failed in this thread */
    int32_t help_context;
    quor_text source;
    quor_text description;
    quor_text help_file;
} quor_error;

/* The error of the last function that failed in this thread. Its texts stay until the next one that fails here. */
QUOR_API int32_t quor_last_error(quor_error* error);

/* Words for the error number that a host's function is about to return in this thread. */
QUOR_API int32_t quor_set_error(int32_t number, quor_text source, quor_text description, quor_text help_file,
                                int32_t help_context);

/* ---- Objects ---------------------------------------------------------------------------------------------------- */

typedef uint64_t quor_object;

QUOR_API int32_t quor_add_ref(quor_object object);
QUOR_API int32_t quor_release(quor_object object);
/* The name of the class, "CQuorCVD" say for settings; the library's, for ever. */
QUOR_API int32_t quor_class_of(quor_object object, const char** class_name);
/* How many handles are in use in this process: 0 once a host has given all back. */
QUOR_API int32_t quor_handle_count(int32_t* count);
/* The version of the library ("1.0.0"); the library's, for ever. */
QUOR_API const char* quor_version(void);

/* ---- Calls by name ---------------------------------------------------------------------------------------------- */

enum { QUOR_EMPTY = 0, QUOR_BOOL = 1, QUOR_INT16 = 2, QUOR_INT32 = 3, QUOR_DOUBLE = 4, QUOR_TEXT = 5, QUOR_OBJECT = 6,
       QUOR_INT32S = 7, QUOR_DOUBLES = 8 };

/* A value with its kind. An enumeration is a QUOR_INT32. */
typedef struct quor_value {
    int32_t kind;
    int32_t owned; /* not 0: its text or reference was given out by the library, and quor_value_clear gives it back */
    union {
        quor_bool boolean;
        int16_t int16;
        int32_t int32;
        double number;
        quor_text text;
        quor_object object;
        quor_int32s int32s;
        quor_doubles doubles;
    } as;
} quor_value;

/* Gives back what the value owns, and makes it QUOR_EMPTY. */
QUOR_API void quor_value_clear(quor_value* value);

enum { QUOR_GET = 1, QUOR_PUT = 2, QUOR_CALL = 4 };

/* The number of a member of the object. A, B, C and a, b, c are the same. The same name has the same number in all
 * classes, for ever. Error 438 when the class has no such member. */
QUOR_API int32_t quor_id_of_name(quor_object object, quor_text name, int32_t* id);

/* Gets a property (args: its indices), puts one (its indices, then the value) or calls a method (its arguments).
 * An argument that the interface lets out may be QUOR_EMPTY, or missing at the end. An integer is taken where it fits,
 * also for a double; nothing else is converted. An in/out argument holds afterwards what came out, owned where it is
 * another text or reference than went in. `result` is written without being read. */
QUOR_API int32_t quor_invoke(quor_object object, int32_t id, int32_t kind, quor_value* args, int32_t n,
                             quor_value* result);

/* Makes an object of a class that hosts make (quor_..._create), by its name. */
QUOR_API int32_t quor_create(quor_text class_name, quor_value* args, int32_t n, quor_object* object);

typedef struct quor_member {
    const char* name;      /* the library's, for ever, as all texts of this structure */
    const char* signature; /* as it stands in the table: "Coefficients[Index: ECVDCoefficients]: double" */
    int32_t id;
    int32_t kinds;      /* the sum of those that it has: QUOR_GET, QUOR_PUT, QUOR_CALL */
    int32_t parameters; /* how many: indices of a property, arguments of a call */
    int32_t required;   /* the place behind the last parameter that cannot be left out */
} quor_member;

/* The members of a class in interface order: `count` is how many there are, of which up to `capacity` are put into
 * `members`, which may be NULL when capacity is 0. */
QUOR_API int32_t quor_members(quor_text class_name, quor_member* members, int32_t capacity, int32_t* count);

/* ---- What a host offers ----------------------------------------------------------------------------------------- */

/* The text that the host's function which runs in this thread gives; the library copies it. Error 5 when none runs. */
QUOR_API int32_t quor_answer(quor_text text);

/* A message with a button OK, and with one for help when help_file is not empty. */
typedef struct quor_message {
    quor_text text; /* its lines are separated by a carriage return (13) */
    quor_text title;
    quor_text help_file;
    int32_t help_context;
    int32_t icon; /* EMessageIcon */
} quor_message;

typedef struct quor_file_request {
    quor_text title;
    quor_text filter;            /* "PT100 Files (*.pt1)|*.pt1" */
    quor_text default_extension; /* without a point */
    quor_text file_name;         /* shown first: a name, or a pattern such as "*.cvd" */
    quor_text folder;            /* shown first; may be empty */
    int32_t kind;                /* EFileDialogKind */
    int32_t owner;               /* window handle of the owner */
    uint32_t flags;              /* the customary open-file-name flags */
} quor_file_request;

/* What a host environment offers. A NULL does what a host without a screen does: messages go to the diagnostic stream,
 * file dialogs are cancelled, dialogs fail, there is no help. */
typedef struct quor_platform_functions {
    size_t size; /* sizeof(quor_platform_functions) */
    void (*destroyed)(void* user);
    /* A new INI-file object, whose reference the library takes. NULL: the built-in one. */
    int32_t (*create_ini_file)(void* user, quor_object* ini_file);
    /* Shows the dialog, a Dialog of the interface, reports in it what the user does, and returns when it is no longer
     * open; one that is still open then is left by Cancel. The handle is the library's and ends with the run. Handles of
     * controls, which the host releases, lead nowhere afterwards. */
    int32_t (*run_dialog)(void* user, quor_object dialog);
    /* Shows the message and waits until it is closed. */
    int32_t (*show_message)(void* user, const quor_message* message);
    /* Answers (quor_answer) the path that the user has chosen, or nothing when the user cancelled. */
    int32_t (*ask_for_file)(void* user, const quor_file_request* request);
    /* Command 1 shows the topic of the context number `data`. `result` is 0 on failure. */
    int32_t (*call_help)(void* user, quor_text help_file, uint32_t command, int32_t data, int32_t* result);
    /* Answers the decimal separator of the user. NULL: ".". Asked once in a process. */
    int32_t (*decimal_separator)(void* user);
    /* Shape of the mouse pointer: EMousePointer, or a shape of the host's own. */
    int32_t (*get_mouse_pointer)(void* user, int32_t* shape);
    int32_t (*set_mouse_pointer)(void* user, int32_t shape);
    /* While a dialog runs: a control may show something else now; another control has the focus (0: none has); the
     * title is another one; the dialog was left. The handles are the library's. NULL: nothing. */
    void (*control_changed)(void* user, quor_object dialog, quor_object control);
    void (*focus_moved)(void* user, quor_object dialog, quor_object control);
    void (*title_changed)(void* user, quor_object dialog);
    void (*dialog_hidden)(void* user, quor_object dialog);
} quor_platform_functions;

/* A host's INI file. Reads put True into `found`, and the value, when the key was found. All of them but hold, release
 * and abandon must stand in the table; these do nothing when they are NULL. */
typedef struct quor_inifile_functions {
    size_t size; /* sizeof(quor_inifile_functions) */
    void (*destroyed)(void* user);
    int32_t (*put_file_name)(void* user, quor_text file_name);
    int32_t (*get_file_name)(void* user); /* answers it */
    int32_t (*put_section)(void* user, quor_text section);
    int32_t (*get_section)(void* user); /* answers it */
    int32_t (*read_boolean)(void* user, quor_text key, quor_bool* value, quor_bool* found);
    int32_t (*read_double)(void* user, quor_text key, double* value, quor_bool* found);
    int32_t (*read_integer)(void* user, quor_text key, int16_t* value, quor_bool* found);
    int32_t (*read_string)(void* user, quor_text key, quor_bool* found); /* answers the text */
    int32_t (*write_boolean)(void* user, quor_text key, quor_bool value);
    int32_t (*write_double)(void* user, quor_text key, double value, quor_text comment);
    int32_t (*write_integer)(void* user, quor_text key, int16_t value, quor_text comment);
    int32_t (*write_string)(void* user, quor_text key, quor_text value);
    int32_t (*hold)(void* user);
    int32_t (*release)(void* user);
    int32_t (*abandon)(void* user);
} quor_inifile_functions;

/* A host's registry. Both functions must stand in the table. */
typedef struct quor_registry_functions {
    size_t size; /* sizeof(quor_registry_functions) */
    void (*destroyed)(void* user);
    int32_t (*read_value)(void* user, quor_text section, quor_text name, quor_bool* found); /* answers the text */
    int32_t (*write_value)(void* user, quor_text section, quor_text name, quor_text value);
} quor_registry_functions;

/* A host's list. All functions must stand in the table. */
typedef struct quor_list_control_functions {
    size_t size; /* sizeof(quor_list_control_functions) */
    void (*destroyed)(void* user);
    int32_t (*clear)(void* user);
    int32_t (*add_item)(void* user, quor_text item);
    int32_t (*get_new_index)(void* user, int32_t* index);
    int32_t (*put_item_data)(void* user, int32_t index, int32_t data);
} quor_list_control_functions;

/* An object that stands for what the host offers. When one of these fails, `destroyed` is not called. */
QUOR_API int32_t quor_platform_from_host(const quor_platform_functions* functions, void* user, quor_object* platform);
QUOR_API int32_t quor_inifile_from_host(const quor_inifile_functions* functions, void* user, quor_object* inifile);
QUOR_API int32_t quor_registry_from_host(const quor_registry_functions* functions, void* user, quor_object* registry);
QUOR_API int32_t quor_list_control_from_host(const quor_list_control_functions* functions, void* user,
                                             quor_object* list_control);
/* The pointer `user` of the table for which an object stands; NULL for an object of the library. */
QUOR_API int32_t quor_host_user(quor_object object, void** user);

/* ---- Enumerations ----------------------------------------------------------------------------------------------- */

typedef int32_t quor_EQuorConversionType;
enum {
    QUOR_CONV_NONE = -1, /* settings: none, as those below that name no class */
    QUOR_CONV_ITS90 = 0, /* settings: CQuorITS90 */
    QUOR_CONV_IPTS68 = 1, /* settings: CQuorIPTS68 */
    QUOR_CONV_CVD = 2, /* settings: CQuorCVD */
    QUOR_CONV_HTPRT = 3, /* settings: CQuorHTPRT */
    QUOR_CONV_POLYNOMIAL = 4, /* settings: CQuorPolynomial */
    QUOR_CONV_THERMISTORT_R = 5, /* settings: CQuorThermistor, T(R) */
    QUOR_CONV_THERMISTORR_T = 6, /* settings: CQuorThermistor, R(T) */
    QUOR_CONV_TCPOLYNOMIAL = 7, /* settings: CQuorTCPolynomial */
    QUOR_CONV_TCTABLE = 8, /* settings: CQuorTCTable */
    QUOR_CONV_TCTYPEX = 9, /* settings: CQuorTCTypeX, of type K at first */
    QUOR_CONV_OHMS = 10,
    QUOR_CONV_VOLTS = 11,
    QUOR_CONV_IEC751 = 12,
    QUOR_CONV_YSI400 = 13,
    QUOR_CONV_WT90 = 14, /* settings: CQuorWT90 */
    QUOR_CONV_RATIO = 15,
    QUOR_CONV_PT100 = 16, /* settings: none; CONV_PT100R0 has some */
    QUOR_CONV_ITSSR5 = 17, /* settings: CQuorITS90, in range 5 */
    QUOR_CONV_THERMISTOR_OHMS = 18,
    QUOR_CONV_PT100R0 = 19, /* settings: CQuorPT100 */
    QUOR_CONV_TCTYPEPOLY = 20 /* settings: CQuorTCTypePoly, of type E at first */
};

typedef int32_t quor_EITS90RangeNumber;
enum {
    QUOR_ITS90_NORANGE = -1,
    QUOR_ITS90_RANGE_1 = 1, /* 13 K to 273 K */
    QUOR_ITS90_RANGE_2 = 2, /* 24 K to 273 K */
    QUOR_ITS90_RANGE_3 = 3, /* 54 K to 273 K */
    QUOR_ITS90_RANGE_4 = 4, /* 83 K to 273 K */
    QUOR_ITS90_RANGE_5 = 5, /* 234 K to 302 K, the one that both sides carry */
    QUOR_ITS90_RANGE_6 = 6, /* 273 K to 1234 K */
    QUOR_ITS90_RANGE_7 = 7, /* 273 K to 933 K */
    QUOR_ITS90_RANGE_8 = 8, /* 273 K to 692 K */
    QUOR_ITS90_RANGE_9 = 9, /* 273 K to 505 K */
    QUOR_ITS90_RANGE_10 = 10, /* 273 K to 429 K */
    QUOR_ITS90_RANGE_11 = 11 /* 273 K to 302 K */
};

typedef int32_t quor_EITS90RangeHL;
enum {
    QUOR_IR_NONE = -1,
    QUOR_IR_LOWRANGE = 0,
    QUOR_IR_HIGHRANGE = 1
};

typedef int32_t quor_EITS90LowRangeCoefficients;
enum {
    QUOR_ITS90_LOW_A = 0,
    QUOR_ITS90_LOW_B = 1,
    QUOR_ITS90_LOW_C1 = 2,
    QUOR_ITS90_LOW_C2 = 3,
    QUOR_ITS90_LOW_C3 = 4,
    QUOR_ITS90_LOW_C4 = 5,
    QUOR_ITS90_LOW_C5 = 6
};

typedef int32_t quor_EITS90HighRangeCoefficients;
enum {
    QUOR_ITS90_HIGH_A = 0,
    QUOR_ITS90_HIGH_B = 1,
    QUOR_ITS90_HIGH_C = 2,
    QUOR_ITS90_HIGH_D = 3
};

typedef int32_t quor_EIPTS68Coefficients;
enum {
    QUOR_IPTS68_R0 = 0, /* resistance at 0 degrees Celsius, ohms */
    QUOR_IPTS68_ALPHA = 1, /* 1/degree Celsius */
    QUOR_IPTS68_DELTA = 2, /* degrees Celsius */
    QUOR_IPTS68_A4 = 3, /* deviation coefficient below 0 degrees Celsius */
    QUOR_IPTS68_C4 = 4 /* deviation coefficient below 0 degrees Celsius */
};

typedef int32_t quor_EIPTS68Scale;
enum {
    QUOR_SCALE_ITS90 = 0,
    QUOR_SCALE_IPTS68 = 1
};

typedef int32_t quor_ECVDCoefficients;
enum {
    QUOR_CVD_R0 = 0, /* resistance at 0 degrees Celsius, ohms */
    QUOR_CVD_ALPHA = 1, /* 1/degree Celsius; A, of the same unit, in the polynomial form */
    QUOR_CVD_DELTA = 2, /* degrees Celsius; B, in 1/degree Celsius^2, in the polynomial form */
    QUOR_CVD_BETA = 3 /* degrees Celsius; C, in 1/degree Celsius^4, in the polynomial form */
};

typedef int32_t quor_EPT100Coefficients;
enum {
    QUOR_PT100_R0 = 0 /* resistance at 0 degrees Celsius, ohms */
};

typedef int32_t quor_EHTPRTCoefficients;
enum {
    QUOR_HTPRT_RTPW = 0, /* resistance at the triple point of water, ohms */
    QUOR_HTPRT_A = 1, /* dimensionless */
    QUOR_HTPRT_B = 2 /* dimensionless */
};

typedef int32_t quor_EThermistorConvType;
enum {
    QUOR_TCT_THRMT_R = 0, /* temperature from resistance, T(R) */
    QUOR_TCT_THRMR_T = 1 /* resistance from temperature, R(T) */
};

typedef int32_t quor_EThermistorCoefficients;
enum {
    QUOR_THRM_A0 = 0, /* A0 to A3 are the names used with T(R) */
    QUOR_THRM_A1 = 1,
    QUOR_THRM_A2 = 2,
    QUOR_THRM_A3 = 3,
    QUOR_THRM_B0 = 0, /* B0 to B3 are the names used with R(T) */
    QUOR_THRM_B1 = 1,
    QUOR_THRM_B2 = 2,
    QUOR_THRM_B3 = 3
};

typedef int32_t quor_EPolynomialCoefficients;
enum {
    QUOR_POLY_A0 = 0,
    QUOR_POLY_A1 = 1,
    QUOR_POLY_A2 = 2,
    QUOR_POLY_A3 = 3,
    QUOR_POLY_A4 = 4,
    QUOR_POLY_A5 = 5,
    QUOR_POLY_A6 = 6,
    QUOR_POLY_A7 = 7,
    QUOR_POLY_A8 = 8,
    QUOR_POLY_A9 = 9,
    QUOR_POLY_A10 = 10
};

typedef int32_t quor_ETCPolynomialCoefficients;
enum {
    QUOR_TC_POLY_C0 = 0,
    QUOR_TC_POLY_C1 = 1,
    QUOR_TC_POLY_C2 = 2,
    QUOR_TC_POLY_C3 = 3,
    QUOR_TC_POLY_C4 = 4,
    QUOR_TC_POLY_C5 = 5,
    QUOR_TC_POLY_C6 = 6,
    QUOR_TC_POLY_C7 = 7,
    QUOR_TC_POLY_C8 = 8,
    QUOR_TC_POLY_C9 = 9,
    QUOR_TC_POLY_C10 = 10,
    QUOR_TC_POLY_C11 = 11,
    QUOR_TC_POLY_C12 = 12,
    QUOR_TC_POLY_C13 = 13,
    QUOR_TC_POLY_C14 = 14,
    QUOR_TC_POLY_C15 = 15
};

typedef int32_t quor_ETCTableCoefficients;
enum {
    QUOR_TCTABLE_T1 = 0, /* temperatures */
    QUOR_TCTABLE_T2 = 1,
    QUOR_TCTABLE_T3 = 2,
    QUOR_TCTABLE_T4 = 3,
    QUOR_TCTABLE_T5 = 4,
    QUOR_TCTABLE_T6 = 5,
    QUOR_TCTABLE_T7 = 6,
    QUOR_TCTABLE_T8 = 7,
    QUOR_TCTABLE_T9 = 8,
    QUOR_TCTABLE_T10 = 9,
    QUOR_TCTABLE_ADJ1 = 0, /* voltages of the same points */
    QUOR_TCTABLE_ADJ2 = 1,
    QUOR_TCTABLE_ADJ3 = 2,
    QUOR_TCTABLE_ADJ4 = 3,
    QUOR_TCTABLE_ADJ5 = 4,
    QUOR_TCTABLE_ADJ6 = 5,
    QUOR_TCTABLE_ADJ7 = 6,
    QUOR_TCTABLE_ADJ8 = 7,
    QUOR_TCTABLE_ADJ9 = 8,
    QUOR_TCTABLE_ADJ10 = 9
};

typedef int32_t quor_ETCTypeXCoefficients;
enum {
    QUOR_TCTYPEX_T1 = 0, /* temperatures of the deviation points */
    QUOR_TCTYPEX_T2 = 1,
    QUOR_TCTYPEX_T3 = 2,
    QUOR_TCTYPEX_ADJ1 = 0, /* offsets of the same points */
    QUOR_TCTYPEX_ADJ2 = 1,
    QUOR_TCTYPEX_ADJ3 = 2,
    QUOR_TCTYPEX_DC1 = 0, /* DC coefficients */
    QUOR_TCTYPEX_DC2 = 1
};

typedef int32_t quor_ETCType;
enum {
    QUOR_TCTYPE_NONE = -1,
    QUOR_TCTYPE_B = 0,
    QUOR_TCTYPE_C = 1,
    QUOR_TCTYPE_E = 2,
    QUOR_TCTYPE_J = 3,
    QUOR_TCTYPE_K = 4,
    QUOR_TCTYPE_L = 5,
    QUOR_TCTYPE_M = 6,
    QUOR_TCTYPE_N = 7,
    QUOR_TCTYPE_R = 8,
    QUOR_TCTYPE_S = 9,
    QUOR_TCTYPE_T = 10,
    QUOR_TCTYPE_U = 11,
    QUOR_TCTYPE_AUPT = 12
};

typedef int32_t quor_EMousePointer;
enum {
    QUOR_POINTER_DEFAULT = 0,
    QUOR_POINTER_HOURGLASS = 11
};

typedef int32_t quor_EMessageIcon;
enum {
    QUOR_ICON_CRITICAL = 16,
    QUOR_ICON_INFORMATION = 64
};

typedef int32_t quor_EFileDialogKind;
enum {
    QUOR_FILE_DIALOG_OPEN = 0,
    QUOR_FILE_DIALOG_SAVE = 1
};

typedef int32_t quor_EControlKind;
enum {
    QUOR_CONTROL_LABEL = 0,
    QUOR_CONTROL_PUSH_BUTTON = 1,
    QUOR_CONTROL_TEXT_BOX = 2,
    QUOR_CONTROL_DROP_DOWN_LIST = 3,
    QUOR_CONTROL_FRAME = 4,
    QUOR_CONTROL_TAB_STRIP = 5
};

typedef int32_t quor_EProbeFileError;
enum {
    QUOR_PROBE_NO_SUCH_SECTION = 1, /* there is no such section */
    QUOR_PROBE_NO_RECORD = 2, /* the section is there and is not the record of a probe */
    QUOR_PROBE_TYPE_UNREADABLE = 3, /* the record says no type that could be read; ErrorOther is its text */
    QUOR_PROBE_UNKNOWN_TYPE = 4, /* its type is the code of no conversion; ErrorOther is the code */
    QUOR_PROBE_INCOMPLETE = 5, /* it cannot be read wholly; see the rows of problems */
    QUOR_PROBE_BAD_NAME = 6, /* no section can have the name */
    QUOR_PROBE_NAME_IS_TAKEN = 7, /* another section has the name, or another probe of one Write */
    QUOR_PROBE_NAME_OF_SETTINGS = 8, /* a probe, ErrorOther, keeps its settings in a section of that name */
    QUOR_PROBE_SETTINGS_ARE_TAKEN = 9, /* the settings would stand in ErrorOther, a section that is there already */
    QUOR_PROBE_SECTION_IS_SHARED = 10, /* a section would go or move with the probe that ErrorOther needs, too */
    QUOR_PROBE_OF_ANOTHER_TYPE = 11, /* a probe of another type, ErrorOther, stands in the section */
    QUOR_PROBE_DOES_NOT_FIT_FILE = 12, /* the section of a stand-alone settings file is not for the type, or not for a renamed probe */
    QUOR_PROBE_CANNOT_BE_WRITTEN = 13, /* by its conversion, whose error is raised */
    QUOR_PROBE_SECTION_OF_HOST = 14, /* no probe can be written into a section that is there and is no record */
    QUOR_PROBE_INCONSISTENT = 15 /* no file gives back what the conversion holds: a count below zero, settings of another type */
};

typedef int32_t quor_EProbeProblem;
enum {
    QUOR_PROBLEM_SECTION_MISSING = 1,
    QUOR_PROBLEM_KEY_MISSING = 2,
    QUOR_PROBLEM_VALUE_UNREADABLE = 3, /* it is not of its kind: a number with a comma, a text in place of a code */
    QUOR_PROBLEM_UNKNOWN_TYPE = 4, /* the code of the type is that of no conversion type */
    QUOR_PROBLEM_RECORD_REFUSED = 5, /* the settings object refuses the record; the text is its own */
    QUOR_PROBLEM_VALUE_REFUSED = 6, /* a value, such as a count below zero, with which no record can be read */
    QUOR_PROBLEM_VALUE_REPLACED = 7, /* the settings object takes another value instead */
    QUOR_PROBLEM_UNKNOWN_KEY = 8, /* a record of this type and size does not hold the key */
    QUOR_PROBLEM_DUPLICATE_KEY = 9, /* the first one is read */
    QUOR_PROBLEM_DUPLICATE_SECTION = 10, /* the first one is read */
    QUOR_PROBLEM_UNCLOSED_HEADER = 11, /* a header without "]": nobody can read the record below it */
    QUOR_PROBLEM_MALFORMED_LINE = 12, /* no key=value */
    QUOR_PROBLEM_KEPT_FILE = 13, /* beside the file: what another program had put in its place */
    QUOR_PROBLEM_INTERRUPTED_SAVE = 14, /* beside the file: what an interrupted save has left */
    QUOR_PROBLEM_LINE_ENDS_IN_CR = 15, /* a header or key behind a carriage return alone, which nobody reads */
    QUOR_WARNING_R0_NOT_POSITIVE = 101,
    QUOR_WARNING_RTPW_NOT_POSITIVE = 102,
    QUOR_WARNING_NOT_FINITE = 103, /* NaN or infinity */
    QUOR_WARNING_COEFFICIENTS_ALL_ZERO = 104,
    QUOR_WARNING_TEMPERATURES_NOT_INCREASING = 105,
    QUOR_WARNING_RANGE_DOES_NOT_FIT = 106, /* coefficients that the ITS-90 range does not have are not 0 */
    QUOR_WARNING_ALPHA_SIZE = 107,
    QUOR_WARNING_DELTA_SIZE = 108,
    QUOR_WARNING_BETA_SIZE = 109,
    QUOR_WARNING_CVD_A_SIZE = 110,
    QUOR_WARNING_CVD_B_SIZE = 111,
    QUOR_WARNING_CVD_C_SIZE = 112,
    QUOR_WARNING_A4_SIZE = 113,
    QUOR_WARNING_C4_SIZE = 114,
    QUOR_WARNING_DEVIATION_A_SIZE = 115,
    QUOR_WARNING_DEVIATION_SIZE = 116, /* b, c, d and c1 to c5 of the ITS-90 */
    QUOR_WARNING_THERMISTOR_A0_SIZE = 117,
    QUOR_WARNING_THERMISTOR_A1_SIZE = 118,
    QUOR_WARNING_THERMISTOR_A3_SIZE = 119,
    QUOR_WARNING_THERMISTOR_B1_SIZE = 120,
    QUOR_WARNING_COUNT_DOES_NOT_FIT = 121 /* values beside a count that it leaves out are not 0 */
};

/* ---- Classes ---------------------------------------------------------------------------------------------------- */

/* CQuorConversion */

QUOR_API int32_t quor_conversion_create(quor_object platform, quor_object* result);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_conversion_get_AllowEdit(quor_object conversion, quor_bool* result);
QUOR_API int32_t quor_conversion_put_AllowEdit(quor_object conversion, quor_bool value);
/* The help file of the whole library in this process, not of this object. */
QUOR_API int32_t quor_conversion_get_HelpFile(quor_object conversion, quor_text* result);
QUOR_API int32_t quor_conversion_put_HelpFile(quor_object conversion, quor_text value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_conversion_SetRegistry(quor_object conversion, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_conversion_get_Registry(quor_object conversion, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_conversion_get_Changed(quor_object conversion, quor_bool* result);
QUOR_API int32_t quor_conversion_put_Changed(quor_object conversion, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_conversion_get_FilePath(quor_object conversion, quor_text* result);
QUOR_API int32_t quor_conversion_put_FilePath(quor_object conversion, quor_text value);
/* The settings object of the current type; none when the type has none. */
QUOR_API int32_t quor_conversion_get_Settings(quor_object conversion, quor_object* result);
/* CONV_NONE at first. Another value drops the settings object and makes a fresh one. */
QUOR_API int32_t quor_conversion_get_ConversionType(quor_object conversion, quor_EQuorConversionType* result);
QUOR_API int32_t quor_conversion_put_ConversionType(quor_object conversion, quor_EQuorConversionType value);
/* The name of a conversion type, "<unknown>" for a code without one. -2: of the settings object. */
QUOR_API int32_t quor_conversion_ConversionName(quor_object conversion, int32_t Value, quor_text* result);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_conversion_Edit(quor_object conversion, quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_conversion_WriteToFile(quor_object conversion, quor_object* INIFile, quor_text fname,
                                             quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. Beware: a
 * section that is not there, or says no type, makes the conversion an ITS-90 one, and its coefficients are lost.
 * Read of ProbeFile refuses such a section. */
QUOR_API int32_t quor_conversion_ReadFromFile(quor_object conversion, quor_object* INIFile, quor_text fname,
                                              quor_text secname, quor_bool* result);

/* CQuorITS90 */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_its90_get_AllowEdit(quor_object its90, quor_bool* result);
QUOR_API int32_t quor_its90_put_AllowEdit(quor_object its90, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_its90_SetRegistry(quor_object its90, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_its90_get_Registry(quor_object its90, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_its90_get_Changed(quor_object its90, quor_bool* result);
QUOR_API int32_t quor_its90_put_Changed(quor_object its90, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_its90_get_FilePath(quor_object its90, quor_text* result);
QUOR_API int32_t quor_its90_put_FilePath(quor_object its90, quor_text value);
/* The sub-range above the triple point of water. It lives as long as its owner. */
QUOR_API int32_t quor_its90_get_HighRange(quor_object its90, quor_object* result);
/* The sub-range below the triple point of water. It lives as long as its owner. */
QUOR_API int32_t quor_its90_get_LowRange(quor_object its90, quor_object* result);
/* Resistance at the triple point of water, ohms. */
QUOR_API int32_t quor_its90_get_RTPW(quor_object its90, double* result);
QUOR_API int32_t quor_its90_put_RTPW(quor_object its90, double value);
/* How the dialog shows RTPW. Never a change. */
QUOR_API int32_t quor_its90_get_RTPWFormat(quor_object its90, quor_text* result);
QUOR_API int32_t quor_its90_put_RTPWFormat(quor_object its90, quor_text value);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_its90_Edit(quor_object its90, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_its90_GetName(quor_object its90, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_its90_OpenFile(quor_object its90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                     quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_its90_SaveFileAs(quor_object its90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                       quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_its90_WriteToFile(quor_object its90, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_its90_ReadFromFile(quor_object its90, quor_object* INIFile, quor_text fname, quor_text secname,
                                         quor_bool* result);

/* CQuorITS90LowRange */

/* Whether the dialog's labels carry the range number; True at first. Never a change. */
QUOR_API int32_t quor_its90_low_range_get_ShowCoefRange(quor_object its90_low_range, quor_bool* result);
QUOR_API int32_t quor_its90_low_range_put_ShowCoefRange(quor_object its90_low_range, quor_bool value);
/* Whether the dialog lets the user pick another range; True at first. Never a change. */
QUOR_API int32_t quor_its90_low_range_get_AllowChangeRange(quor_object its90_low_range, quor_bool* result);
QUOR_API int32_t quor_its90_low_range_put_AllowChangeRange(quor_object its90_low_range, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_its90_low_range_SetRegistry(quor_object its90_low_range, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_its90_low_range_get_Registry(quor_object its90_low_range, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_its90_low_range_get_Changed(quor_object its90_low_range, quor_bool* result);
QUOR_API int32_t quor_its90_low_range_put_Changed(quor_object its90_low_range, quor_bool value);
/* True at first. False selects the first range that is of this side alone. */
QUOR_API int32_t quor_its90_low_range_get_RangeEnabled(quor_object its90_low_range, quor_bool* result);
QUOR_API int32_t quor_its90_low_range_put_RangeEnabled(quor_object its90_low_range, quor_bool value);
/* The name of a range of this side, empty for any other value. -2: of the current one. */
QUOR_API int32_t quor_its90_low_range_RangeName(quor_object its90_low_range, int32_t vData, quor_text* result);
/* How many coefficients there are. */
QUOR_API int32_t quor_its90_low_range_get_NumCoefficients(quor_object its90_low_range, int16_t* result);
/* ITS90_NORANGE at first. Error 0x800401F6 outside MinRange to MaxRange; no range is always valid. */
QUOR_API int32_t quor_its90_low_range_get_Range(quor_object its90_low_range, quor_EITS90RangeNumber* result);
QUOR_API int32_t quor_its90_low_range_put_Range(quor_object its90_low_range, quor_EITS90RangeNumber value);
/* The upper limit of Range; not checked, never a change. */
QUOR_API int32_t quor_its90_low_range_get_MaxRange(quor_object its90_low_range, quor_EITS90RangeNumber* result);
QUOR_API int32_t quor_its90_low_range_put_MaxRange(quor_object its90_low_range, quor_EITS90RangeNumber value);
/* The lower limit of Range; not checked, never a change. */
QUOR_API int32_t quor_its90_low_range_get_MinRange(quor_object its90_low_range, quor_EITS90RangeNumber* result);
QUOR_API int32_t quor_its90_low_range_put_MinRange(quor_object its90_low_range, quor_EITS90RangeNumber value);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_its90_low_range_get_Coefficients(quor_object its90_low_range,
                                                       quor_EITS90LowRangeCoefficients Index, double* result);
QUOR_API int32_t quor_its90_low_range_put_Coefficients(quor_object its90_low_range,
                                                       quor_EITS90LowRangeCoefficients Index, double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_its90_low_range_get_ValueFormat(quor_object its90_low_range, quor_text* result);
QUOR_API int32_t quor_its90_low_range_put_ValueFormat(quor_object its90_low_range, quor_text value);
/* Fills a list with "<none>" and the ranges, each with its number as item data. */
QUOR_API int32_t quor_its90_low_range_FillRangeCombo(quor_object its90_low_range, quor_object ctrl);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_its90_low_range_WriteToFile(quor_object its90_low_range, quor_object* INIFile, quor_text fname,
                                                  quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_its90_low_range_ReadFromFile(quor_object its90_low_range, quor_object* INIFile, quor_text fname,
                                                   quor_text secname, quor_bool* result);

/* CQuorITS90HighRange */

/* Whether the dialog's labels carry the range number; True at first. Never a change. */
QUOR_API int32_t quor_its90_high_range_get_ShowCoefRange(quor_object its90_high_range, quor_bool* result);
QUOR_API int32_t quor_its90_high_range_put_ShowCoefRange(quor_object its90_high_range, quor_bool value);
/* Whether the dialog lets the user pick another range; True at first. Never a change. */
QUOR_API int32_t quor_its90_high_range_get_AllowChangeRange(quor_object its90_high_range, quor_bool* result);
QUOR_API int32_t quor_its90_high_range_put_AllowChangeRange(quor_object its90_high_range, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_its90_high_range_SetRegistry(quor_object its90_high_range, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_its90_high_range_get_Registry(quor_object its90_high_range, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_its90_high_range_get_Changed(quor_object its90_high_range, quor_bool* result);
QUOR_API int32_t quor_its90_high_range_put_Changed(quor_object its90_high_range, quor_bool value);
/* True at first. False selects the first range that is of this side alone. */
QUOR_API int32_t quor_its90_high_range_get_RangeEnabled(quor_object its90_high_range, quor_bool* result);
QUOR_API int32_t quor_its90_high_range_put_RangeEnabled(quor_object its90_high_range, quor_bool value);
/* The name of a range of this side, empty for any other value. -2: of the current one. */
QUOR_API int32_t quor_its90_high_range_RangeName(quor_object its90_high_range, int32_t vData, quor_text* result);
/* How many coefficients there are. */
QUOR_API int32_t quor_its90_high_range_get_NumCoefficients(quor_object its90_high_range, int16_t* result);
/* ITS90_NORANGE at first. Error 0x800401F6 outside MinRange to MaxRange; no range is always valid. */
QUOR_API int32_t quor_its90_high_range_get_Range(quor_object its90_high_range, quor_EITS90RangeNumber* result);
QUOR_API int32_t quor_its90_high_range_put_Range(quor_object its90_high_range, quor_EITS90RangeNumber value);
/* The upper limit of Range; not checked, never a change. */
QUOR_API int32_t quor_its90_high_range_get_MaxRange(quor_object its90_high_range, quor_EITS90RangeNumber* result);
QUOR_API int32_t quor_its90_high_range_put_MaxRange(quor_object its90_high_range, quor_EITS90RangeNumber value);
/* The lower limit of Range; not checked, never a change. */
QUOR_API int32_t quor_its90_high_range_get_MinRange(quor_object its90_high_range, quor_EITS90RangeNumber* result);
QUOR_API int32_t quor_its90_high_range_put_MinRange(quor_object its90_high_range, quor_EITS90RangeNumber value);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_its90_high_range_get_Coefficients(quor_object its90_high_range,
                                                        quor_EITS90HighRangeCoefficients Index, double* result);
QUOR_API int32_t quor_its90_high_range_put_Coefficients(quor_object its90_high_range,
                                                        quor_EITS90HighRangeCoefficients Index, double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_its90_high_range_get_ValueFormat(quor_object its90_high_range, quor_text* result);
QUOR_API int32_t quor_its90_high_range_put_ValueFormat(quor_object its90_high_range, quor_text value);
/* Fills a list with "<none>" and the ranges, each with its number as item data. */
QUOR_API int32_t quor_its90_high_range_FillRangeCombo(quor_object its90_high_range, quor_object ctrl);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_its90_high_range_WriteToFile(quor_object its90_high_range, quor_object* INIFile,
                                                   quor_text fname, quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_its90_high_range_ReadFromFile(quor_object its90_high_range, quor_object* INIFile,
                                                    quor_text fname, quor_text secname, quor_bool* result);

/* CQuorIPTS68 */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_ipts68_get_AllowEdit(quor_object ipts68, quor_bool* result);
QUOR_API int32_t quor_ipts68_put_AllowEdit(quor_object ipts68, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_ipts68_SetRegistry(quor_object ipts68, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_ipts68_get_Registry(quor_object ipts68, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_ipts68_get_Changed(quor_object ipts68, quor_bool* result);
QUOR_API int32_t quor_ipts68_put_Changed(quor_object ipts68, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_ipts68_get_FilePath(quor_object ipts68, quor_text* result);
QUOR_API int32_t quor_ipts68_put_FilePath(quor_object ipts68, quor_text value);
/* Whether the dialog offers the choice of the scale; False at first. Never a change. */
QUOR_API int32_t quor_ipts68_get_ScaleEnabled(quor_object ipts68, quor_bool* result);
QUOR_API int32_t quor_ipts68_put_ScaleEnabled(quor_object ipts68, quor_bool value);
/* How many coefficients there are. */
QUOR_API int32_t quor_ipts68_get_NumCoefficients(quor_object ipts68, int16_t* result);
/* The temperature scale of the instrument; SCALE_ITS90 at first. Any value is stored. */
QUOR_API int32_t quor_ipts68_get_IPTS68Scale(quor_object ipts68, quor_EIPTS68Scale* result);
QUOR_API int32_t quor_ipts68_put_IPTS68Scale(quor_object ipts68, quor_EIPTS68Scale value);
/* The name of a scale, empty for a value without one. -2: of the current one. */
QUOR_API int32_t quor_ipts68_IPTS68ScaleName(quor_object ipts68, int32_t vData, quor_text* result);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_ipts68_get_Coefficients(quor_object ipts68, quor_EIPTS68Coefficients Index, double* result);
QUOR_API int32_t quor_ipts68_put_Coefficients(quor_object ipts68, quor_EIPTS68Coefficients Index, double value);
/* How the dialog shows a coefficient. Never a change. */
QUOR_API int32_t quor_ipts68_get_ValueFormat(quor_object ipts68, quor_EIPTS68Coefficients Index, quor_text* result);
QUOR_API int32_t quor_ipts68_put_ValueFormat(quor_object ipts68, quor_EIPTS68Coefficients Index, quor_text value);
/* Fills a list with the two scales, each with its value as item data. */
QUOR_API int32_t quor_ipts68_FillScaleCombo(quor_object ipts68, quor_object ctrl);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_ipts68_Edit(quor_object ipts68, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_ipts68_GetName(quor_object ipts68, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_ipts68_OpenFile(quor_object ipts68, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                      quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_ipts68_SaveFileAs(quor_object ipts68, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                        quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_ipts68_WriteToFile(quor_object ipts68, quor_object* INIFile, quor_text fname,
                                         quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_ipts68_ReadFromFile(quor_object ipts68, quor_object* INIFile, quor_text fname,
                                          quor_text secname, quor_bool* result);

/* CQuorCVD */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_cvd_get_AllowEdit(quor_object cvd, quor_bool* result);
QUOR_API int32_t quor_cvd_put_AllowEdit(quor_object cvd, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_cvd_SetRegistry(quor_object cvd, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_cvd_get_Registry(quor_object cvd, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_cvd_get_Changed(quor_object cvd, quor_bool* result);
QUOR_API int32_t quor_cvd_put_Changed(quor_object cvd, quor_bool value);
/* 4 at first. A negative value refuses every index until a valid one is set. */
QUOR_API int32_t quor_cvd_get_NumCoefficients(quor_object cvd, int16_t* result);
QUOR_API int32_t quor_cvd_put_NumCoefficients(quor_object cvd, int16_t value);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_cvd_get_Coefficients(quor_object cvd, quor_ECVDCoefficients Index, double* result);
QUOR_API int32_t quor_cvd_put_Coefficients(quor_object cvd, quor_ECVDCoefficients Index, double value);
/* Whether the coefficients are those of the polynomial form. Never a change. */
QUOR_API int32_t quor_cvd_get_UsePolynomial(quor_object cvd, quor_bool* result);
QUOR_API int32_t quor_cvd_put_UsePolynomial(quor_object cvd, quor_bool value);
/* How the dialog shows a coefficient. Never a change. */
QUOR_API int32_t quor_cvd_get_ValueFormat(quor_object cvd, quor_ECVDCoefficients Index, quor_text* result);
QUOR_API int32_t quor_cvd_put_ValueFormat(quor_object cvd, quor_ECVDCoefficients Index, quor_text value);
/* How many coefficients the class knows. */
QUOR_API int32_t quor_cvd_MaxCoefficients(quor_object cvd, int16_t* result);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_cvd_Edit(quor_object cvd, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_cvd_GetName(quor_object cvd, quor_text* result);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_cvd_get_FilePath(quor_object cvd, quor_text* result);
QUOR_API int32_t quor_cvd_put_FilePath(quor_object cvd, quor_text value);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_cvd_OpenFile(quor_object cvd, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                   quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_cvd_SaveFileAs(quor_object cvd, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                     quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_cvd_WriteToFile(quor_object cvd, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_cvd_ReadFromFile(quor_object cvd, quor_object* INIFile, quor_text fname, quor_text secname,
                                       quor_bool* result);

/* CQuorPT100 */

QUOR_API int32_t quor_pt100_create(quor_object platform, quor_object* result);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_pt100_get_AllowEdit(quor_object pt100, quor_bool* result);
QUOR_API int32_t quor_pt100_put_AllowEdit(quor_object pt100, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_pt100_SetRegistry(quor_object pt100, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_pt100_get_Registry(quor_object pt100, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_pt100_get_Changed(quor_object pt100, quor_bool* result);
QUOR_API int32_t quor_pt100_put_Changed(quor_object pt100, quor_bool value);
/* 1 at first. A negative value refuses every index until a valid one is set. */
QUOR_API int32_t quor_pt100_get_NumCoefficients(quor_object pt100, int16_t* result);
QUOR_API int32_t quor_pt100_put_NumCoefficients(quor_object pt100, int16_t value);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_pt100_get_Coefficients(quor_object pt100, quor_EPT100Coefficients Index, double* result);
QUOR_API int32_t quor_pt100_put_Coefficients(quor_object pt100, quor_EPT100Coefficients Index, double value);
/* How the dialog shows a coefficient. Never a change. */
QUOR_API int32_t quor_pt100_get_ValueFormat(quor_object pt100, quor_EPT100Coefficients Index, quor_text* result);
QUOR_API int32_t quor_pt100_put_ValueFormat(quor_object pt100, quor_EPT100Coefficients Index, quor_text value);
/* How many coefficients the class knows. */
QUOR_API int32_t quor_pt100_MaxCoefficients(quor_object pt100, int16_t* result);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_pt100_Edit(quor_object pt100, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_pt100_GetName(quor_object pt100, quor_text* result);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_pt100_get_FilePath(quor_object pt100, quor_text* result);
QUOR_API int32_t quor_pt100_put_FilePath(quor_object pt100, quor_text value);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_pt100_OpenFile(quor_object pt100, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                     quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_pt100_SaveFileAs(quor_object pt100, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                       quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_pt100_WriteToFile(quor_object pt100, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_pt100_ReadFromFile(quor_object pt100, quor_object* INIFile, quor_text fname, quor_text secname,
                                         quor_bool* result);

/* CQuorHTPRT */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_htprt_get_AllowEdit(quor_object htprt, quor_bool* result);
QUOR_API int32_t quor_htprt_put_AllowEdit(quor_object htprt, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_htprt_SetRegistry(quor_object htprt, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_htprt_get_Registry(quor_object htprt, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_htprt_get_Changed(quor_object htprt, quor_bool* result);
QUOR_API int32_t quor_htprt_put_Changed(quor_object htprt, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_htprt_get_FilePath(quor_object htprt, quor_text* result);
QUOR_API int32_t quor_htprt_put_FilePath(quor_object htprt, quor_text value);
/* How many coefficients there are. */
QUOR_API int32_t quor_htprt_get_NumCoefficients(quor_object htprt, int16_t* result);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_htprt_get_Coefficients(quor_object htprt, quor_EHTPRTCoefficients Index, double* result);
QUOR_API int32_t quor_htprt_put_Coefficients(quor_object htprt, quor_EHTPRTCoefficients Index, double value);
/* How the dialog shows a coefficient. Never a change. */
QUOR_API int32_t quor_htprt_get_ValueFormat(quor_object htprt, quor_EHTPRTCoefficients Index, quor_text* result);
QUOR_API int32_t quor_htprt_put_ValueFormat(quor_object htprt, quor_EHTPRTCoefficients Index, quor_text value);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_htprt_Edit(quor_object htprt, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_htprt_GetName(quor_object htprt, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_htprt_OpenFile(quor_object htprt, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                     quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_htprt_SaveFileAs(quor_object htprt, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                       quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_htprt_WriteToFile(quor_object htprt, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_htprt_ReadFromFile(quor_object htprt, quor_object* INIFile, quor_text fname, quor_text secname,
                                         quor_bool* result);

/* CQuorWT90 */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_wt90_get_AllowEdit(quor_object wt90, quor_bool* result);
QUOR_API int32_t quor_wt90_put_AllowEdit(quor_object wt90, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_wt90_SetRegistry(quor_object wt90, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_wt90_get_Registry(quor_object wt90, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_wt90_get_Changed(quor_object wt90, quor_bool* result);
QUOR_API int32_t quor_wt90_put_Changed(quor_object wt90, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_wt90_get_FilePath(quor_object wt90, quor_text* result);
QUOR_API int32_t quor_wt90_put_FilePath(quor_object wt90, quor_text value);
/* Resistance at the triple point of water, ohms. */
QUOR_API int32_t quor_wt90_get_RTPW(quor_object wt90, double* result);
QUOR_API int32_t quor_wt90_put_RTPW(quor_object wt90, double value);
/* How the dialog shows RTPW. Never a change. */
QUOR_API int32_t quor_wt90_get_RTPWFormat(quor_object wt90, quor_text* result);
QUOR_API int32_t quor_wt90_put_RTPWFormat(quor_object wt90, quor_text value);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_wt90_Edit(quor_object wt90, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_wt90_GetName(quor_object wt90, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_wt90_OpenFile(quor_object wt90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                    quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_wt90_SaveFileAs(quor_object wt90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                      quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_wt90_WriteToFile(quor_object wt90, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_wt90_ReadFromFile(quor_object wt90, quor_object* INIFile, quor_text fname, quor_text secname,
                                        quor_bool* result);

/* CQuorThermistor */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_thermistor_get_AllowEdit(quor_object thermistor, quor_bool* result);
QUOR_API int32_t quor_thermistor_put_AllowEdit(quor_object thermistor, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_thermistor_SetRegistry(quor_object thermistor, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_thermistor_get_Registry(quor_object thermistor, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_thermistor_get_Changed(quor_object thermistor, quor_bool* result);
QUOR_API int32_t quor_thermistor_put_Changed(quor_object thermistor, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_thermistor_get_FilePath(quor_object thermistor, quor_text* result);
QUOR_API int32_t quor_thermistor_put_FilePath(quor_object thermistor, quor_text value);
/* The direction of the polynomial; TCT_THRMT_R at first. Any value is stored. */
QUOR_API int32_t quor_thermistor_get_ConvType(quor_object thermistor, quor_EThermistorConvType* result);
QUOR_API int32_t quor_thermistor_put_ConvType(quor_object thermistor, quor_EThermistorConvType value);
/* "Thermistor " and a direction. -2: the current one. */
QUOR_API int32_t quor_thermistor_ConvName(quor_object thermistor, int32_t vData, quor_text* result);
/* How many coefficients there are. */
QUOR_API int32_t quor_thermistor_get_NumCoefficients(quor_object thermistor, int16_t* result);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_thermistor_get_Coefficients(quor_object thermistor, quor_EThermistorCoefficients Index,
                                                  double* result);
QUOR_API int32_t quor_thermistor_put_Coefficients(quor_object thermistor, quor_EThermistorCoefficients Index,
                                                  double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_thermistor_get_ValueFormat(quor_object thermistor, quor_text* result);
QUOR_API int32_t quor_thermistor_put_ValueFormat(quor_object thermistor, quor_text value);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_thermistor_Edit(quor_object thermistor, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_thermistor_GetName(quor_object thermistor, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_thermistor_OpenFile(quor_object thermistor, int32_t hwnd, quor_text Filename,
                                          quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_thermistor_SaveFileAs(quor_object thermistor, int32_t hwnd, quor_text Filename,
                                            quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_thermistor_WriteToFile(quor_object thermistor, quor_object* INIFile, quor_text fname,
                                             quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_thermistor_ReadFromFile(quor_object thermistor, quor_object* INIFile, quor_text fname,
                                              quor_text secname, quor_bool* result);

/* CQuorPolynomial */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_polynomial_get_AllowEdit(quor_object polynomial, quor_bool* result);
QUOR_API int32_t quor_polynomial_put_AllowEdit(quor_object polynomial, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_polynomial_SetRegistry(quor_object polynomial, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_polynomial_get_Registry(quor_object polynomial, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_polynomial_get_Changed(quor_object polynomial, quor_bool* result);
QUOR_API int32_t quor_polynomial_put_Changed(quor_object polynomial, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_polynomial_get_FilePath(quor_object polynomial, quor_text* result);
QUOR_API int32_t quor_polynomial_put_FilePath(quor_object polynomial, quor_text value);
/* Order + 1. */
QUOR_API int32_t quor_polynomial_get_NumCoefficients(quor_object polynomial, int16_t* result);
/* The order of the polynomial, 4 at first. A value outside MinOrder to MaxOrder is ignored. */
QUOR_API int32_t quor_polynomial_get_Order(quor_object polynomial, int16_t* result);
QUOR_API int32_t quor_polynomial_put_Order(quor_object polynomial, int16_t value);
/* 4. */
QUOR_API int32_t quor_polynomial_get_MinOrder(quor_object polynomial, int16_t* result);
/* 10. */
QUOR_API int32_t quor_polynomial_get_MaxOrder(quor_object polynomial, int16_t* result);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_polynomial_put_Coefficients(quor_object polynomial, quor_EPolynomialCoefficients Index,
                                                  double value);
QUOR_API int32_t quor_polynomial_get_Coefficients(quor_object polynomial, quor_EPolynomialCoefficients Index,
                                                  double* result);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_polynomial_put_ValueFormat(quor_object polynomial, quor_text value);
QUOR_API int32_t quor_polynomial_get_ValueFormat(quor_object polynomial, quor_text* result);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_polynomial_Edit(quor_object polynomial, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_polynomial_GetName(quor_object polynomial, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_polynomial_OpenFile(quor_object polynomial, int32_t hwnd, quor_text Filename,
                                          quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_polynomial_SaveFileAs(quor_object polynomial, int32_t hwnd, quor_text Filename,
                                            quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_polynomial_WriteToFile(quor_object polynomial, quor_object* INIFile, quor_text fname,
                                             quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_polynomial_ReadFromFile(quor_object polynomial, quor_object* INIFile, quor_text fname,
                                              quor_text secname, quor_bool* result);
/* What the dialog's labels begin with: "A" gives "A0", "A1" and so on. Never a change. */
QUOR_API int32_t quor_polynomial_put_CoefficientLabelPrefix(quor_object polynomial, quor_text value);
QUOR_API int32_t quor_polynomial_get_CoefficientLabelPrefix(quor_object polynomial, quor_text* result);

/* CQuorTCPolynomial */

/* How the dialog shows mV25C. Never a change. */
QUOR_API int32_t quor_tc_polynomial_get_mV25CFormat(quor_object tc_polynomial, quor_text* result);
QUOR_API int32_t quor_tc_polynomial_put_mV25CFormat(quor_object tc_polynomial, quor_text value);
/* Voltage at 25 degrees Celsius, millivolts. */
QUOR_API int32_t quor_tc_polynomial_get_mV25C(quor_object tc_polynomial, double* result);
QUOR_API int32_t quor_tc_polynomial_put_mV25C(quor_object tc_polynomial, double value);
/* Whether the dialog shows mV25C; False at first. Never a change. */
QUOR_API int32_t quor_tc_polynomial_get_ShowmV25C(quor_object tc_polynomial, quor_bool* result);
QUOR_API int32_t quor_tc_polynomial_put_ShowmV25C(quor_object tc_polynomial, quor_bool value);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_tc_polynomial_get_AllowEdit(quor_object tc_polynomial, quor_bool* result);
QUOR_API int32_t quor_tc_polynomial_put_AllowEdit(quor_object tc_polynomial, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_tc_polynomial_SetRegistry(quor_object tc_polynomial, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_tc_polynomial_get_Registry(quor_object tc_polynomial, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_tc_polynomial_get_Changed(quor_object tc_polynomial, quor_bool* result);
QUOR_API int32_t quor_tc_polynomial_put_Changed(quor_object tc_polynomial, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_tc_polynomial_get_FilePath(quor_object tc_polynomial, quor_text* result);
QUOR_API int32_t quor_tc_polynomial_put_FilePath(quor_object tc_polynomial, quor_text value);
/* 16 at first. A negative value is stored and then error 9. */
QUOR_API int32_t quor_tc_polynomial_get_NumCoefficients(quor_object tc_polynomial, int16_t* result);
QUOR_API int32_t quor_tc_polynomial_put_NumCoefficients(quor_object tc_polynomial, int16_t value);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_tc_polynomial_get_Coefficients(quor_object tc_polynomial, quor_ETCPolynomialCoefficients Index,
                                                     double* result);
QUOR_API int32_t quor_tc_polynomial_put_Coefficients(quor_object tc_polynomial, quor_ETCPolynomialCoefficients Index,
                                                     double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_tc_polynomial_get_ValueFormat(quor_object tc_polynomial, quor_text* result);
QUOR_API int32_t quor_tc_polynomial_put_ValueFormat(quor_object tc_polynomial, quor_text value);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_tc_polynomial_Edit(quor_object tc_polynomial, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_tc_polynomial_GetName(quor_object tc_polynomial, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_tc_polynomial_OpenFile(quor_object tc_polynomial, int32_t hwnd, quor_text Filename,
                                             quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_tc_polynomial_SaveFileAs(quor_object tc_polynomial, int32_t hwnd, quor_text Filename,
                                               quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_tc_polynomial_WriteToFile(quor_object tc_polynomial, quor_object* INIFile, quor_text fname,
                                                quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_tc_polynomial_ReadFromFile(quor_object tc_polynomial, quor_object* INIFile, quor_text fname,
                                                 quor_text secname, quor_bool* result);

/* CQuorTCTable */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_tc_table_get_AllowEdit(quor_object tc_table, quor_bool* result);
QUOR_API int32_t quor_tc_table_put_AllowEdit(quor_object tc_table, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_tc_table_SetRegistry(quor_object tc_table, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_tc_table_get_Registry(quor_object tc_table, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_tc_table_get_Changed(quor_object tc_table, quor_bool* result);
QUOR_API int32_t quor_tc_table_put_Changed(quor_object tc_table, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_tc_table_get_FilePath(quor_object tc_table, quor_text* result);
QUOR_API int32_t quor_tc_table_put_FilePath(quor_object tc_table, quor_text value);
/* 10 at first. A value above 10 is ignored; a negative one is stored and then error 9. */
QUOR_API int32_t quor_tc_table_get_NumPoints(quor_object tc_table, int16_t* result);
QUOR_API int32_t quor_tc_table_put_NumPoints(quor_object tc_table, int16_t value);
/* The temperature of a point, in the unit that TempScale names. */
QUOR_API int32_t quor_tc_table_get_Temperatures(quor_object tc_table, quor_ETCTableCoefficients Index,
                                                double* result);
QUOR_API int32_t quor_tc_table_put_Temperatures(quor_object tc_table, quor_ETCTableCoefficients Index, double value);
/* The voltage of a point, in the unit that VoltageScale names. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_tc_table_get_Voltages(quor_object tc_table, quor_ETCTableCoefficients Index, double* result);
QUOR_API int32_t quor_tc_table_put_Voltages(quor_object tc_table, quor_ETCTableCoefficients Index, double value);
/* How the dialog shows temperatures. Never a change. */
QUOR_API int32_t quor_tc_table_get_TempFormat(quor_object tc_table, quor_text* result);
QUOR_API int32_t quor_tc_table_put_TempFormat(quor_object tc_table, quor_text value);
/* How the dialog shows voltages. Never a change. */
QUOR_API int32_t quor_tc_table_get_VoltageFormat(quor_object tc_table, quor_text* result);
QUOR_API int32_t quor_tc_table_put_VoltageFormat(quor_object tc_table, quor_text value);
/* The unit text beside temperatures; it converts nothing. */
QUOR_API int32_t quor_tc_table_get_TempScale(quor_object tc_table, quor_text* result);
QUOR_API int32_t quor_tc_table_put_TempScale(quor_object tc_table, quor_text value);
/* The unit text beside voltages, "mV" at first; it converts nothing. */
QUOR_API int32_t quor_tc_table_get_VoltageScale(quor_object tc_table, quor_text* result);
QUOR_API int32_t quor_tc_table_put_VoltageScale(quor_object tc_table, quor_text value);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_tc_table_Edit(quor_object tc_table, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_tc_table_GetName(quor_object tc_table, quor_text* result);
/* Fills a list with the counts that can be chosen, each with its number as item data. */
QUOR_API int32_t quor_tc_table_FillPointsCombo(quor_object tc_table, quor_object ctrl);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_tc_table_OpenFile(quor_object tc_table, int32_t hwnd, quor_text Filename,
                                        quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_tc_table_SaveFileAs(quor_object tc_table, int32_t hwnd, quor_text Filename,
                                          quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_tc_table_WriteToFile(quor_object tc_table, quor_object* INIFile, quor_text fname,
                                           quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_tc_table_ReadFromFile(quor_object tc_table, quor_object* INIFile, quor_text fname,
                                            quor_text secname, quor_bool* result);

/* CQuorTCTypeX */

/* Whether the dialog shows the DC coefficients; True at first. Never a change. */
QUOR_API int32_t quor_tc_typex_get_ShowDCCoefs(quor_object tc_typex, quor_bool* result);
QUOR_API int32_t quor_tc_typex_put_ShowDCCoefs(quor_object tc_typex, quor_bool value);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_tc_typex_get_AllowEdit(quor_object tc_typex, quor_bool* result);
QUOR_API int32_t quor_tc_typex_put_AllowEdit(quor_object tc_typex, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_tc_typex_SetRegistry(quor_object tc_typex, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_tc_typex_get_Registry(quor_object tc_typex, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_tc_typex_get_Changed(quor_object tc_typex, quor_bool* result);
QUOR_API int32_t quor_tc_typex_put_Changed(quor_object tc_typex, quor_bool value);
/* The unit text beside temperatures; it converts nothing. */
QUOR_API int32_t quor_tc_typex_get_TempScale(quor_object tc_typex, quor_text* result);
QUOR_API int32_t quor_tc_typex_put_TempScale(quor_object tc_typex, quor_text value);
/* The unit text beside offsets; it converts nothing. */
QUOR_API int32_t quor_tc_typex_get_OffsetScale(quor_object tc_typex, quor_text* result);
QUOR_API int32_t quor_tc_typex_put_OffsetScale(quor_object tc_typex, quor_text value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_tc_typex_get_FilePath(quor_object tc_typex, quor_text* result);
QUOR_API int32_t quor_tc_typex_put_FilePath(quor_object tc_typex, quor_text value);
/* The standard thermocouple type. Any value is stored. */
QUOR_API int32_t quor_tc_typex_get_TCType(quor_object tc_typex, quor_ETCType* result);
QUOR_API int32_t quor_tc_typex_put_TCType(quor_object tc_typex, quor_ETCType value);
/* The plain name of a thermocouple type. -2: of the current one. */
QUOR_API int32_t quor_tc_typex_GetTCTypeName(quor_object tc_typex, int32_t tc, quor_text* result);
/* Fills a list with the types that have names, each with its value as item data. */
QUOR_API int32_t quor_tc_typex_FillTCTypeNameCombo(quor_object tc_typex, quor_object ctrl);
/* 3 at first. A value above 3 is ignored; a negative one is stored and then error 9. */
QUOR_API int32_t quor_tc_typex_get_NumPoints(quor_object tc_typex, int16_t* result);
QUOR_API int32_t quor_tc_typex_put_NumPoints(quor_object tc_typex, int16_t value);
/* The user is told of an index that is none; no error. */
QUOR_API int32_t quor_tc_typex_get_Temperatures(quor_object tc_typex, quor_ETCTypeXCoefficients Index,
                                                double* result);
QUOR_API int32_t quor_tc_typex_put_Temperatures(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double value);
/* A DC coefficient. Error 0x800401F5 for any other index. */
QUOR_API int32_t quor_tc_typex_get_Coefficients(quor_object tc_typex, quor_ETCTypeXCoefficients Index,
                                                double* result);
QUOR_API int32_t quor_tc_typex_put_Coefficients(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double value);
/* The user is told of an index that is none; no error. */
QUOR_API int32_t quor_tc_typex_get_Offsets(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double* result);
QUOR_API int32_t quor_tc_typex_put_Offsets(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double value);
/* How the dialog shows temperatures. Never a change. */
QUOR_API int32_t quor_tc_typex_get_TempFormat(quor_object tc_typex, quor_text* result);
QUOR_API int32_t quor_tc_typex_put_TempFormat(quor_object tc_typex, quor_text value);
/* How the dialog shows DC coefficients. Never a change. */
QUOR_API int32_t quor_tc_typex_get_ValueFormat(quor_object tc_typex, quor_text* result);
QUOR_API int32_t quor_tc_typex_put_ValueFormat(quor_object tc_typex, quor_text value);
/* How the dialog shows offsets. Never a change. */
QUOR_API int32_t quor_tc_typex_get_OffsetFormat(quor_object tc_typex, quor_text* result);
QUOR_API int32_t quor_tc_typex_put_OffsetFormat(quor_object tc_typex, quor_text value);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_tc_typex_Edit(quor_object tc_typex, quor_bool* result);
/* The plain name of a type. -2: of the current one, behind "TC Type ". */
QUOR_API int32_t quor_tc_typex_GetName(quor_object tc_typex, int32_t tc, quor_text* result);
/* Fills a list with the counts that can be chosen, each with its number as item data. */
QUOR_API int32_t quor_tc_typex_FillPointsCombo(quor_object tc_typex, quor_object ctrl);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_tc_typex_OpenFile(quor_object tc_typex, int32_t hwnd, quor_text Filename,
                                        quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_tc_typex_SaveFileAs(quor_object tc_typex, int32_t hwnd, quor_text Filename,
                                          quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_tc_typex_WriteToFile(quor_object tc_typex, quor_object* INIFile, quor_text fname,
                                           quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_tc_typex_ReadFromFile(quor_object tc_typex, quor_object* INIFile, quor_text fname,
                                            quor_text secname, quor_bool* result);

/* CQuorTCTypePoly */

QUOR_API int32_t quor_tc_typepoly_create(quor_object platform, quor_object* result);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_tc_typepoly_get_AllowEdit(quor_object tc_typepoly, quor_bool* result);
QUOR_API int32_t quor_tc_typepoly_put_AllowEdit(quor_object tc_typepoly, quor_bool value);
/* Keeps a reference to the host's registry, which may be none. */
QUOR_API int32_t quor_tc_typepoly_SetRegistry(quor_object tc_typepoly, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_tc_typepoly_get_Registry(quor_object tc_typepoly, quor_object* result);
/* Whether a value has been changed since a host last cleared the flag. No save clears it. */
QUOR_API int32_t quor_tc_typepoly_get_Changed(quor_object tc_typepoly, quor_bool* result);
QUOR_API int32_t quor_tc_typepoly_put_Changed(quor_object tc_typepoly, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_tc_typepoly_get_FilePath(quor_object tc_typepoly, quor_text* result);
QUOR_API int32_t quor_tc_typepoly_put_FilePath(quor_object tc_typepoly, quor_text value);
/* 4 at first. A negative value is stored and then error 9. */
QUOR_API int32_t quor_tc_typepoly_get_NumCoefficients(quor_object tc_typepoly, int16_t* result);
QUOR_API int32_t quor_tc_typepoly_put_NumCoefficients(quor_object tc_typepoly, int16_t value);
/* A coefficient. Error 0x800401F5 for an index that is none. */
QUOR_API int32_t quor_tc_typepoly_get_Coefficients(quor_object tc_typepoly, quor_ETCPolynomialCoefficients Index,
                                                   double* result);
QUOR_API int32_t quor_tc_typepoly_put_Coefficients(quor_object tc_typepoly, quor_ETCPolynomialCoefficients Index,
                                                   double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_tc_typepoly_get_ValueFormat(quor_object tc_typepoly, quor_text* result);
QUOR_API int32_t quor_tc_typepoly_put_ValueFormat(quor_object tc_typepoly, quor_text value);
/* The standard thermocouple type. Any value is stored. */
QUOR_API int32_t quor_tc_typepoly_get_TCType(quor_object tc_typepoly, quor_ETCType* result);
QUOR_API int32_t quor_tc_typepoly_put_TCType(quor_object tc_typepoly, quor_ETCType value);
/* The plain name of a thermocouple type. -2: of the current one. */
QUOR_API int32_t quor_tc_typepoly_GetTCTypeName(quor_object tc_typepoly, int32_t tc, quor_text* result);
/* Fills a list with the types that have names, each with its value as item data. */
QUOR_API int32_t quor_tc_typepoly_FillTCTypeNameCombo(quor_object tc_typepoly, quor_object ctrl);
/* Shows the settings dialog. False when the user cancelled, or it failed, which was reported. */
QUOR_API int32_t quor_tc_typepoly_Edit(quor_object tc_typepoly, quor_bool* result);
/* The plain name of a type. -2: of the current one, behind "TC Type ". */
QUOR_API int32_t quor_tc_typepoly_GetName(quor_object tc_typepoly, int32_t tc, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False when cancelled. */
QUOR_API int32_t quor_tc_typepoly_OpenFile(quor_object tc_typepoly, int32_t hwnd, quor_text Filename,
                                           quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False when cancelled. */
QUOR_API int32_t quor_tc_typepoly_SaveFileAs(quor_object tc_typepoly, int32_t hwnd, quor_text Filename,
                                             quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section; without INIFile into the file fname. A failure is told to the user alone, by
 * show_message of the platform; the call itself raises no error, as Write of ProbeFile does. */
QUOR_API int32_t quor_tc_typepoly_WriteToFile(quor_object tc_typepoly, quor_object* INIFile, quor_text fname,
                                              quor_text secname);
/* Reads the record; fname as in WriteToFile. True when every key was found; otherwise the user is told. */
QUOR_API int32_t quor_tc_typepoly_ReadFromFile(quor_object tc_typepoly, quor_object* INIFile, quor_text fname,
                                               quor_text secname, quor_bool* result);

/* INIFile. An INI file: the built-in store, or what a host offers (quor_inifile_from_host). */

QUOR_API int32_t quor_inifile_create(quor_object* result);
/* The file that the object is bound to. Setting it touches no file. */
QUOR_API int32_t quor_inifile_put_FileName(quor_object inifile, quor_text value);
QUOR_API int32_t quor_inifile_get_FileName(quor_object inifile, quor_text* result);
/* The section that reads and writes address. */
QUOR_API int32_t quor_inifile_put_Section(quor_object inifile, quor_text value);
QUOR_API int32_t quor_inifile_get_Section(quor_object inifile, quor_text* result);
/* True when the key was found, with a value of that kind, which Value is then. */
QUOR_API int32_t quor_inifile_ReadBoolean(quor_object inifile, quor_text Key, quor_bool* Value, quor_bool* result);
/* True when the key was found, with a value of that kind, which Value is then. */
QUOR_API int32_t quor_inifile_ReadDouble(quor_object inifile, quor_text Key, double* Value, quor_bool* result);
/* True when the key was found, with a value of that kind, which Value is then. */
QUOR_API int32_t quor_inifile_ReadInteger(quor_object inifile, quor_text Key, int16_t* Value, quor_bool* result);
/* True when the key was found; Value is its text then. */
QUOR_API int32_t quor_inifile_ReadString(quor_object inifile, quor_text Key, quor_text Value, quor_text* Value_out,
                                         quor_bool* result);
/* Writes a value under a key. */
QUOR_API int32_t quor_inifile_WriteBoolean(quor_object inifile, quor_text Key, quor_bool Value);
/* Writes a value under a key. A Comment stands behind it in the file. */
QUOR_API int32_t quor_inifile_WriteDouble(quor_object inifile, quor_text Key, double Value, quor_text Comment);
/* Writes a value under a key. A Comment stands behind it in the file. */
QUOR_API int32_t quor_inifile_WriteInteger(quor_object inifile, quor_text Key, int16_t Value, quor_text Comment);
/* Writes a value under a key. */
QUOR_API int32_t quor_inifile_WriteString(quor_object inifile, quor_text Key, quor_text Value);
/* Opens a bracket: what is written in it becomes durable with the outermost Release. */
QUOR_API int32_t quor_inifile_Hold(quor_object inifile);
/* Closes a bracket that Hold has opened. */
QUOR_API int32_t quor_inifile_Release(quor_object inifile);
/* Closes a bracket in place of Release: nothing written since the outermost Hold is saved. */
QUOR_API int32_t quor_inifile_Abandon(quor_object inifile);

/* Registry. A registry: the built-in one, in a file of the application, or what a host offers
 * (quor_registry_from_host). Without a folder the built-in one stands in the user's configuration folder. */

QUOR_API int32_t quor_registry_create(quor_text application, quor_text folder, quor_object* result);
/* True when the value was found; Value is its text then. */
QUOR_API int32_t quor_registry_ReadValue(quor_object registry, quor_text Section, quor_text Name, quor_text Value,
                                         quor_text* Value_out, quor_bool* result);
/* Keeps a value for later runs. */
QUOR_API int32_t quor_registry_WriteValue(quor_object registry, quor_text Section, quor_text Name, quor_text Value);

/* ListControl. A list, which a host offers (quor_list_control_from_host). */

/* Takes all items out. */
QUOR_API int32_t quor_list_control_Clear(quor_object list_control);
/* Adds an item at the end. */
QUOR_API int32_t quor_list_control_AddItem(quor_object list_control, quor_text Item);
/* The index, from 0, of the item that was added last. */
QUOR_API int32_t quor_list_control_get_NewIndex(quor_object list_control, int32_t* result);
/* The number that an item carries. */
QUOR_API int32_t quor_list_control_put_ItemData(quor_object list_control, int32_t Index, int32_t value);

/* Dialog. A dialog while it runs, for the host that shows it: what it holds, and what the user does with it. */

/* The name in the code: "frmCVDSettings", "txtCoefficients(2)". */
QUOR_API int32_t quor_dialog_get_Name(quor_object dialog, quor_text* result);
/* The title of the window. */
QUOR_API int32_t quor_dialog_get_Title(quor_object dialog, quor_text* result);
/* The context number of the dialog's help topic. */
QUOR_API int32_t quor_dialog_get_HelpContext(quor_object dialog, int32_t* result);
/* How many controls there are. */
QUOR_API int32_t quor_dialog_get_ControlCount(quor_object dialog, int32_t* result);
/* A control, in tab order, from 0. */
QUOR_API int32_t quor_dialog_get_Controls(quor_object dialog, int32_t Index, quor_object* result);
/* The control of that name; none when there is none. */
QUOR_API int32_t quor_dialog_FindControl(quor_object dialog, quor_text Name, quor_object* result);
/* How many frames and button groups stand side by side. */
QUOR_API int32_t quor_dialog_get_ColumnCount(quor_object dialog, int32_t* result);
/* A frame or button group, from left to right, from 0. */
QUOR_API int32_t quor_dialog_get_Columns(quor_object dialog, int32_t Index, quor_object* result);
/* The button that the Escape key presses; none when there is none. */
QUOR_API int32_t quor_dialog_get_CancelButton(quor_object dialog, quor_object* result);
/* The handle of the window while it is shown; 0 otherwise. Whoever shows the window sets it. */
QUOR_API int32_t quor_dialog_get_WindowHandle(quor_object dialog, int32_t* result);
QUOR_API int32_t quor_dialog_put_WindowHandle(quor_object dialog, int32_t value);
/* Whether it is known where the window stands. */
QUOR_API int32_t quor_dialog_get_HasPlace(quor_object dialog, quor_bool* result);
/* Where the window stands, in units of whoever shows it; 0 when it is not known. */
QUOR_API int32_t quor_dialog_get_Left(quor_object dialog, int32_t* result);
/* Where the window stands, in units of whoever shows it; 0 when it is not known. */
QUOR_API int32_t quor_dialog_get_Top(quor_object dialog, int32_t* result);
/* Tells where the window stands now. */
QUOR_API int32_t quor_dialog_SetPlace(quor_object dialog, int32_t Left, int32_t Top);
/* False when the dialog was left: the run is to end. */
QUOR_API int32_t quor_dialog_get_IsOpen(quor_object dialog, quor_bool* result);
/* The control that has the focus; none before the first one has got it. */
QUOR_API int32_t quor_dialog_get_ActiveControl(quor_object dialog, quor_object* result);
/* The window has become the active one. Say it once the window is shown. */
QUOR_API int32_t quor_dialog_Activate(quor_object dialog);
/* A push button was pressed. */
QUOR_API int32_t quor_dialog_Click(quor_object dialog, quor_object Button);
/* An item of a list was chosen. */
QUOR_API int32_t quor_dialog_Choose(quor_object dialog, quor_object List, int32_t Index);
/* A tab was chosen. */
QUOR_API int32_t quor_dialog_SelectTab(quor_object dialog, quor_object Tabs, int32_t Index);
/* The user went to a control. */
QUOR_API int32_t quor_dialog_Focus(quor_object dialog, quor_object Control);
/* The Tab key, with Shift when Backwards. */
QUOR_API int32_t quor_dialog_PressTab(quor_object dialog, quor_bool Backwards);
/* A key was pressed in the box that has the focus. The key that counts: another one, or 0 for none. */
QUOR_API int32_t quor_dialog_KeyPress(quor_object dialog, int16_t KeyAscii, int16_t* result);
/* Text and selection of a box are what the user has made them. Counted in characters (code points). */
QUOR_API int32_t quor_dialog_EditText(quor_object dialog, quor_object Box, quor_text Text, int32_t SelStart,
                                      int32_t SelLength);
/* The Escape key. */
QUOR_API int32_t quor_dialog_Escape(quor_object dialog);
/* The window's own close box. */
QUOR_API int32_t quor_dialog_Close(quor_object dialog);
/* A text is pasted into a box, or dropped on it. It may fill the boxes behind it, too. */
QUOR_API int32_t quor_dialog_Paste(quor_object dialog, quor_object Box, quor_text Text);
/* The F1 key. */
QUOR_API int32_t quor_dialog_Help(quor_object dialog);
/* The button that the F1 key presses; none when there is none. */
QUOR_API int32_t quor_dialog_get_HelpButton(quor_object dialog, quor_object* result);
/* The box whose advice is to be shown; none when there is no advice. */
QUOR_API int32_t quor_dialog_get_AdvisedBox(quor_object dialog, quor_object* result);

/* Control. A control of a dialog that runs. A member that its kind does not have is error 438. */

/* The name in the code: "frmCVDSettings", "txtCoefficients(2)". */
QUOR_API int32_t quor_control_get_Name(quor_object control, quor_text* result);
/* What kind of control it is. */
QUOR_API int32_t quor_control_get_Kind(quor_object control, quor_EControlKind* result);
/* What stands on the control; "&" marks the access key that follows it. */
QUOR_API int32_t quor_control_get_Caption(quor_object control, quor_text* result);
/* Whether the control is enabled. */
QUOR_API int32_t quor_control_get_Enabled(quor_object control, quor_bool* result);
/* The control's own flag: also True on a page that is not shown. */
QUOR_API int32_t quor_control_get_Visible(quor_object control, quor_bool* result);
/* Whether the control and the frames around it are visible. */
QUOR_API int32_t quor_control_get_IsShown(quor_object control, quor_bool* result);
/* Whether the user can act on it. */
QUOR_API int32_t quor_control_get_IsUsable(quor_object control, quor_bool* result);
/* The frame around it; none for a control that stands in the dialog itself. */
QUOR_API int32_t quor_control_get_Parent(quor_object control, quor_object* result);
/* The text of a text box. */
QUOR_API int32_t quor_control_get_Text(quor_object control, quor_text* result);
/* Where the selection of a text box begins, in characters (code points). */
QUOR_API int32_t quor_control_get_SelStart(quor_object control, int32_t* result);
/* How long the selection of a text box is, in characters (code points). */
QUOR_API int32_t quor_control_get_SelLength(quor_object control, int32_t* result);
/* How many items a list has. */
QUOR_API int32_t quor_control_get_ListCount(quor_object control, int32_t* result);
/* The text of an item, from 0. */
QUOR_API int32_t quor_control_get_List(quor_object control, int32_t Index, quor_text* result);
/* The number that an item carries. */
QUOR_API int32_t quor_control_get_ItemData(quor_object control, int32_t Index, int32_t* result);
/* The selected item of a list, from 0; -1 for none. */
QUOR_API int32_t quor_control_get_ListIndex(quor_object control, int32_t* result);
/* How many rows a frame has. */
QUOR_API int32_t quor_control_get_RowCount(quor_object control, int32_t* result);
/* How many places a row has, from 0. */
QUOR_API int32_t quor_control_get_RowLength(quor_object control, int32_t Row, int32_t* result);
/* The control in a place of a row, both from 0; none in an empty place. */
QUOR_API int32_t quor_control_get_RowControls(quor_object control, int32_t Row, int32_t Place, quor_object* result);
/* How many tabs a strip has, those that were taken out among them. */
QUOR_API int32_t quor_control_get_TabCount(quor_object control, int32_t* result);
/* The caption of a tab, from 0. */
QUOR_API int32_t quor_control_get_TabCaption(quor_object control, int32_t Index, quor_text* result);
/* False for a tab that was taken out. */
QUOR_API int32_t quor_control_get_TabPresent(quor_object control, int32_t Index, quor_bool* result);
/* The selected tab, from 0. */
QUOR_API int32_t quor_control_get_SelectedTab(quor_object control, int32_t* result);
/* What the user is told of the text of a box before it is stored; mostly empty. */
QUOR_API int32_t quor_control_get_Advice(quor_object control, quor_text* result);

/* ProbeFile. The probes of a host's file, or the one of a stand-alone settings file. A file that is not there is
 * error 53; one that may be new has no probes, and the first write makes it. What is written is durable when the
 * call returns, and every call that writes does so in one turn, upon the file as it is then. All reads see one
 * text, that which was loaded first or saved last, until Reload. Between Hold and Release nothing is written:
 * Release does all of it together, or when one thing fails nothing, and raises what that raises. Source, which such
 * a call reads, stays until then. An error of a probe is 75 or the number of its cause; ErrorCode says which it is. */

QUOR_API int32_t quor_probe_file_create(quor_text path, quor_bool mayBeNew, quor_object* result);
/* The path as it was given. */
QUOR_API int32_t quor_probe_file_get_Path(quor_object probe_file, quor_text* result);
/* Whether a write would be refused, because this user may not write the file or its folder. */
QUOR_API int32_t quor_probe_file_get_IsReadOnly(quor_object probe_file, quor_bool* result);
/* How many probes there are. */
QUOR_API int32_t quor_probe_file_get_ProbeCount(quor_object probe_file, int32_t* result);
/* The section of a probe, in the order of the file, from 0. */
QUOR_API int32_t quor_probe_file_get_ProbeSection(quor_object probe_file, int32_t Index, quor_text* result);
/* The line of the header of a probe's section, from 1. */
QUOR_API int32_t quor_probe_file_get_ProbeLine(quor_object probe_file, int32_t Index, int32_t* result);
/* The conversion type of a probe, CONV_NONE where HasType is False. It may be a code of none. */
QUOR_API int32_t quor_probe_file_get_ProbeType(quor_object probe_file, int32_t Index,
                                               quor_EQuorConversionType* result);
/* Whether the record of a probe says a type that can be read. False for a stand-alone one. */
QUOR_API int32_t quor_probe_file_get_HasType(quor_object probe_file, int32_t Index, quor_bool* result);
/* Whether the section holds the settings themselves: the probe of a settings file. */
QUOR_API int32_t quor_probe_file_get_IsStandAlone(quor_object probe_file, int32_t Index, quor_bool* result);
/* The name of a probe's conversion; empty where its type cannot be read. */
QUOR_API int32_t quor_probe_file_get_ConversionName(quor_object probe_file, int32_t Index, quor_text* result);
/* The index of the probe of a section, in any case of ASCII letters; -1 when there is none. */
QUOR_API int32_t quor_probe_file_FindProbe(quor_object probe_file, quor_text Section, int32_t* result);
/* Reads a probe into a conversion, which gets its type, and defaults for what is missing: False then, and there
 * are rows. */
QUOR_API int32_t quor_probe_file_Read(quor_object probe_file, quor_text Section, quor_object Conversion,
                                      quor_bool* result);
/* The numbers of all probes at once. */
QUOR_API int32_t quor_probe_file_ReadAll(quor_object probe_file, quor_object* result);
/* Looks for all that is wrong with the file and its probes. How many problems there are. */
QUOR_API int32_t quor_probe_file_Check(quor_object probe_file, int32_t* result);
/* How many problems the last Read or Check has found. Their rows are kept until the next call that is no get. */
QUOR_API int32_t quor_probe_file_get_ProblemCount(quor_object probe_file, int32_t* result);
/* What is wrong. */
QUOR_API int32_t quor_probe_file_get_ProblemKind(quor_object probe_file, int32_t Index, quor_EProbeProblem* result);
/* The line of a problem, from 1; 0 for what stands beside the file. */
QUOR_API int32_t quor_probe_file_get_ProblemLine(quor_object probe_file, int32_t Index, int32_t* result);
/* The section of a problem; empty where it has no name. */
QUOR_API int32_t quor_probe_file_get_ProblemSection(quor_object probe_file, int32_t Index, quor_text* result);
/* The key of a problem; empty where it is not that of one key. */
QUOR_API int32_t quor_probe_file_get_ProblemKey(quor_object probe_file, int32_t Index, quor_text* result);
/* What is wrong, for a person, without the place. */
QUOR_API int32_t quor_probe_file_get_ProblemText(quor_object probe_file, int32_t Index, quor_text* result);
/* How many messages the last Read has brought, which are shown to nobody. */
QUOR_API int32_t quor_probe_file_get_MessageCount(quor_object probe_file, int32_t* result);
/* A message of the library, on one line. */
QUOR_API int32_t quor_probe_file_get_Messages(quor_object probe_file, int32_t Index, quor_text* result);
/* Writes a probe, over that of the section or as a new one: only lines of values that differ change. */
QUOR_API int32_t quor_probe_file_Write(quor_object probe_file, quor_text Section, quor_object Conversion);
/* Writes the values of a probe that have become others since this object has read them into the conversion, or has
 * written them from it. What other programs have written beside them stays, now and in later calls. False when
 * they have changed the same values: there are conflicts, and nothing is written. Error 5 for a conversion that
 * this object has neither read nor written. */
QUOR_API int32_t quor_probe_file_WriteChanges(quor_object probe_file, quor_text Section, quor_object Conversion,
                                              quor_bool* result);
/* How many values others have changed, too, as the last WriteChanges or Release has found. */
QUOR_API int32_t quor_probe_file_get_ConflictCount(quor_object probe_file, int32_t* result);
/* The section of such a value. */
QUOR_API int32_t quor_probe_file_get_ConflictSection(quor_object probe_file, int32_t Index, quor_text* result);
/* The key of such a value. */
QUOR_API int32_t quor_probe_file_get_ConflictKey(quor_object probe_file, int32_t Index, quor_text* result);
/* The value that was read; empty for none. */
QUOR_API int32_t quor_probe_file_get_ConflictRead(quor_object probe_file, int32_t Index, quor_text* result);
/* The value that stands in the file now; empty for none. */
QUOR_API int32_t quor_probe_file_get_ConflictTheirs(quor_object probe_file, int32_t Index, quor_text* result);
/* The value that was to be written. */
QUOR_API int32_t quor_probe_file_get_ConflictOurs(quor_object probe_file, int32_t Index, quor_text* result);
/* Gives a probe another name, and so the sections of its settings. */
QUOR_API int32_t quor_probe_file_Rename(quor_object probe_file, quor_text Section, quor_text Name);
/* Removes a probe with the sections of its settings. Comments that stand apart stay. */
QUOR_API int32_t quor_probe_file_Remove(quor_object probe_file, quor_text Section);
/* Writes the values of a probe into another section, a new one or one of the same type. */
QUOR_API int32_t quor_probe_file_Copy(quor_object probe_file, quor_text Section, quor_text ToSection);
/* The same from another file, as it was loaded. */
QUOR_API int32_t quor_probe_file_CopyFrom(quor_object probe_file, quor_object Source, quor_text Section,
                                          quor_text ToSection);
/* Opens a bracket: what is written in it becomes durable with the outermost Release. */
QUOR_API int32_t quor_probe_file_Hold(quor_object probe_file);
/* Closes a bracket that Hold has opened. */
QUOR_API int32_t quor_probe_file_Release(quor_object probe_file);
/* Closes a bracket in place of Release: nothing written since the outermost Hold is saved. */
QUOR_API int32_t quor_probe_file_Abandon(quor_object probe_file);
/* Gives another file the text of this one as it was loaded or saved last. */
QUOR_API int32_t quor_probe_file_SaveAs(quor_object probe_file, quor_text Path);
/* Whether another program has changed the file since it was loaded or saved, or has removed it. */
QUOR_API int32_t quor_probe_file_get_Changed(quor_object probe_file, quor_bool* result);
/* Loads the file as it is now. */
QUOR_API int32_t quor_probe_file_Reload(quor_object probe_file);
/* The file itself, for its other sections. */
QUOR_API int32_t quor_probe_file_get_Store(quor_object probe_file, quor_object* result);
/* Why the last call has failed; 0 when it has not, or when it is no matter of a probe. */
QUOR_API int32_t quor_probe_file_get_ErrorCode(quor_object probe_file, quor_EProbeFileError* result);
/* What else that concerns: another probe or section, or a type; mostly empty. */
QUOR_API int32_t quor_probe_file_get_ErrorOther(quor_object probe_file, quor_text* result);
/* Whether WriteChanges would write anything; of a conversion that this object has neither read nor written,
 * whether it has another type or other values than the probe, as Read would give it. */
QUOR_API int32_t quor_probe_file_Differs(quor_object probe_file, quor_text Section, quor_object Conversion,
                                         quor_bool* result);

/* ProbeTable. The numbers of all probes of a file, one array behind the other, for hosts in languages with slow
 * calls. It is of the moment in which ReadAll made it. The values of probe i begin where those of probe i - 1 end. */

/* How many probes there are. */
QUOR_API int32_t quor_probe_table_get_ProbeCount(quor_object probe_table, int32_t* result);
/* The sections of the probes, each with a line feed (10) behind it. */
QUOR_API int32_t quor_probe_table_get_Sections(quor_object probe_table, quor_text* result);
/* The conversion type of each probe; CONV_NONE where it cannot be read. */
QUOR_API int32_t quor_probe_table_get_Types(quor_object probe_table, quor_int32s* result);
/* How many problems and messages there are with each probe; -1 for one that cannot be read. */
QUOR_API int32_t quor_probe_table_get_ProblemCounts(quor_object probe_table, quor_int32s* result);
/* Each list of keys that occurs, with tabs between the keys and a line feed (10) behind the list. */
QUOR_API int32_t quor_probe_table_get_KeyLists(quor_object probe_table, quor_text* result);
/* Which list, from 0, names the values of each probe. */
QUOR_API int32_t quor_probe_table_get_KeyListOf(quor_object probe_table, quor_int32s* result);
/* Where the values of each probe end, and those of the next one begin. */
QUOR_API int32_t quor_probe_table_get_ValueEnds(quor_object probe_table, quor_int32s* result);
/* The values of all probes. Booleans are 1 and 0; texts, such as units, are not among them. */
QUOR_API int32_t quor_probe_table_get_Values(quor_object probe_table, quor_doubles* result);

#ifdef __cplusplus
}
#endif
/* NOLINTEND */

#endif /* QUOR_H */

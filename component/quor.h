/* clang-format off */
/* Quor Conversions for C, and for every language that can call C.
 * Made by component/generate from members.txt and quor.h.in: change those.
 *
 *  1. Objects are handles, numbers of 64 bits; 0 is none. An object has the same handle however often and in whichever
 *     way it is given out, so handles can be compared by ==. Every handle that a function gives out is one reference,
 *     which the caller releases by quor_release; quor_add_ref takes one more. An object exists as long as it has
 *     references, here or inside the library. A handle that was never given out, or was released, is error 91.
 *  2. Every function returns 0 or the number of an error, which quor_last_error describes for the thread; nothing is
 *     given out then. The result is the last parameter; it may be NULL if it is not needed.
 *  3. Text is UTF-8 with its size in bytes (quor_text); anything else is error 5. A text passed in stays the caller's.
 *     A text given out is freed by the caller with quor_text_free. Texts that the library passes to a function of the
 *     host, and those of quor_error, quor_message and quor_file_request, stay the library's; they are valid during the
 *     function, those of quor_error until the next error. All these texts are followed by a zero byte, which their size
 *     does not count.
 *  4. A property P is get_P and put_P, with its indices before its value; a call has its own name. An in/out reference is
 *     one parameter: the caller owns one reference to what it holds before the call and after it (the call releases a
 *     reference that it replaces); NULL means none. An in/out text is two parameters: the text passed in, and the text
 *     given out. An in/out number is one, which must not be NULL.
 *  5. Booleans have 16 bits and True is -1; any value but 0 is accepted as True. Counts have 16 bits, enumerations and
 *     indices 32. An enumeration accepts any value of 32 bits. A name function takes -2 for the current value.
 *  6. Use a handle in one thread at a time; objects that refer to each other (a conversion, its settings, their ranges, a
 *     registry, a platform) count as one. Unrelated objects may be used in different threads. The help file is shared by
 *     the process. quor_add_ref, quor_release and quor_last_error may be called in any thread at any time.
 *  7. What a host provides is a table of functions and a pointer `user` for it. Its first field is its size, so that
 *     tables can grow; the comments say what a NULL means. A function returns 0 or the number of an error, which passes
 *     through the library like an error of its own; quor_set_error adds a description. It returns a text by calling
 *     quor_answer. It may call every function of this file; it must not throw or jump out. The table is copied.
 *  8. Functions, fields and values are added at the end; none changes its meaning.
 *  9. Set a table or quor_value to zero bytes before filling it in. Complete hosts are among the samples: host-c/main.c
 *     reads a probe, edits it in a dialog and saves it.
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

/* A text: UTF-8 and its size. */
typedef struct quor_text {
    const char* bytes; /* may be NULL if size is 0 */
    size_t size;       /* in bytes, without a zero byte */
} quor_text;

/* The quor_text of a C string; NULL is the empty text. */
static inline quor_text quor_text_of(const char* text) {
    quor_text result;
    result.bytes = text;
    result.size = text ? strlen(text) : 0;
    return result;
}

/* Whole numbers. They belong to the object that has given them out and are valid as long as it exists. */
typedef struct quor_int32s {
    const int32_t* values; /* NULL if there are none */
    size_t size;           /* how many */
} quor_int32s;
/* Doubles. They belong to the object that has given them out and are valid as long as it exists. */
typedef struct quor_doubles {
    const double* values; /* NULL if there are none */
    size_t size;          /* how many */
} quor_doubles;

/* Frees a text that the library has given out, and empties it. Does nothing for NULL and the empty text. */
QUOR_API void quor_text_free(quor_text* text);

/* ---- Errors ----------------------------------------------------------------------------------------------------- */

/* Error numbers of this interface; the objects have others (53 file not found, 61 disk full, ...). */
enum {
    QUOR_OK = 0,
    QUOR_ERROR_ARGUMENT = 5,             /* text that is not UTF-8, or NULL where it is not allowed */
    QUOR_ERROR_OVERFLOW = 6,             /* a number outside the range of the parameter */
    QUOR_ERROR_OUT_OF_MEMORY = 7,
    QUOR_ERROR_SUBSCRIPT = 9,            /* a negative count; an invalid index in a list of a dialog */
    QUOR_ERROR_TYPE = 13,                /* an object of another class, a value of another kind */
    QUOR_ERROR_NO_OBJECT = 91,           /* not a handle, a released one, or one of a dialog that has ended */
    QUOR_ERROR_WRITE_ONLY = 394,
    QUOR_ERROR_READ_ONLY = 383,
    QUOR_ERROR_CANNOT_CREATE = 429,      /* no such class, or one that hosts cannot create */
    QUOR_ERROR_NO_MEMBER = 438,          /* no member with that name or number, or not of that kind */
    QUOR_ERROR_ARGUMENT_COUNT = 450,
    QUOR_ERROR_INDEX = -2147221003,      /* 0x800401F5 "Index out of range" */
    QUOR_ERROR_RANGE = -2147221002,      /* 0x800401F6 "ITS-90 range out of range." */
    QUOR_ERROR_UNEXPECTED = -2147467259  /* 0x80004005 */
};

/* An error, with texts of the library. */
typedef struct quor_error {
    int32_t number;        /* what the function returned; 0 if none has failed in this thread */
    int32_t help_context;  /* the help topic; 0 if there is none */
    quor_text source;      /* the class or component that failed */
    quor_text description; /* what went wrong; names the file, if there is one */
    quor_text help_file;   /* the file with the help topic; may be empty */
} quor_error;

/* The error of the last function that failed in this thread. Its texts are valid until another function fails in it. */
QUOR_API int32_t quor_last_error(quor_error* error);

/* Describes the error whose number a function of the host is about to return in this thread. */
QUOR_API int32_t quor_set_error(int32_t number, quor_text source, quor_text description, quor_text help_file,
                                int32_t help_context);

/* ---- Objects ---------------------------------------------------------------------------------------------------- */

/* A handle of an object; 0 is none. */
typedef uint64_t quor_object;

/* Takes one more reference to an object, and gives one back. The object is destroyed with its last reference, here or
 * inside the library. Error 91 for a handle that is not valid. */
QUOR_API int32_t quor_add_ref(quor_object object);
QUOR_API int32_t quor_release(quor_object object);
/* The name of the class of an object, such as "CQuorCVD". The text is never freed. */
QUOR_API int32_t quor_class_of(quor_object object, const char** class_name);
/* How many handles are in use in this process; 0 once the host has released all of them. */
QUOR_API int32_t quor_handle_count(int32_t* count);
/* The version of the library ("1.0.0"). The text is never freed. */
QUOR_API const char* quor_version(void);

/* ---- Calls by name ---------------------------------------------------------------------------------------------- */

/* The kind of a quor_value. */
enum { QUOR_EMPTY = 0, QUOR_BOOL = 1, QUOR_INT16 = 2, QUOR_INT32 = 3, QUOR_DOUBLE = 4, QUOR_TEXT = 5, QUOR_OBJECT = 6,
       QUOR_INT32S = 7, QUOR_DOUBLES = 8 };

/* A value of any kind. An enumeration is a QUOR_INT32. */
typedef struct quor_value {
    int32_t kind;  /* QUOR_EMPTY to QUOR_DOUBLES */
    int32_t owned; /* 0 in a value of the host; not 0 in a text or reference from the library: quor_value_clear releases it */
    /* The value, in the field for its kind. */
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

/* Releases what the value owns, and makes it QUOR_EMPTY. */
QUOR_API void quor_value_clear(quor_value* value);

/* What quor_invoke does with a member. */
enum { QUOR_GET = 1, QUOR_PUT = 2, QUOR_CALL = 4 };

/* The number of a member of the object, by its name in any case. A name has the same number in all classes, and it
 * never changes. Error 438 if the class has no such member. */
QUOR_API int32_t quor_id_of_name(quor_object object, quor_text name, int32_t* id);

/* Gets a property (args: its indices), puts one (its indices, then the value) or calls a method (its arguments).
 * An optional argument may be QUOR_EMPTY, or be left out at the end. An integer is accepted if it fits, also for a
 * double; nothing else is converted. An in/out argument afterwards holds what came out, owned if that is another text or
 * reference than went in. `result` is written without being read. */
QUOR_API int32_t quor_invoke(quor_object object, int32_t id, int32_t kind, quor_value* args, int32_t n,
                             quor_value* result);

/* Creates an object of a class that hosts can create (quor_..._create), by its name. Error 429 for any other class. */
QUOR_API int32_t quor_create(quor_text class_name, quor_value* args, int32_t n, quor_object* object);

/* The description of a member. Its texts are never freed. */
typedef struct quor_member {
    const char* name;      /* "Coefficients" */
    const char* signature; /* "Coefficients[Index: ECVDCoefficients]: double" */
    int32_t id;            /* its number, for quor_invoke */
    int32_t kinds;         /* the sum of those it has: QUOR_GET, QUOR_PUT, QUOR_CALL */
    int32_t parameters;    /* how many indices a property has, or arguments a call */
    int32_t required;      /* how many of them must be given, counted to the last one that is not optional */
} quor_member;

/* The members of a class in interface order: `count` receives their number, and `members`, which may be NULL if
 * `capacity` is 0, up to `capacity` of them. */
QUOR_API int32_t quor_members(quor_text class_name, quor_member* members, int32_t capacity, int32_t* count);

/* ---- What a host provides --------------------------------------------------------------------------------------- */

/* Sets the text that the running function of the host returns; the library copies it. Error 5 outside of one. */
QUOR_API int32_t quor_answer(quor_text text);

/* A message with the button OK and, if help_file is not empty, the button Help. */
typedef struct quor_message {
    quor_text text; /* its lines are separated by a carriage return (13) */
    quor_text title;      /* of the window */
    quor_text help_file;  /* what the button Help opens; may be empty */
    int32_t help_context; /* the topic in the help file */
    int32_t icon;         /* EMessageIcon */
} quor_message;

/* A file dialog to be shown. */
typedef struct quor_file_request {
    quor_text title;             /* of the window */
    quor_text filter;            /* "PT100 Files (*.pt1)|*.pt1" */
    quor_text default_extension; /* without a point */
    quor_text file_name;         /* shown first: a name, or a pattern such as "*.cvd" */
    quor_text folder;            /* shown first; may be empty */
    int32_t kind;                /* EFileDialogKind */
    int32_t owner;               /* window handle of the owner */
    uint32_t flags;              /* the customary open-file-name flags */
} quor_file_request;

/* The platform of a host. A function that is NULL behaves as without a screen: messages go to the diagnostic stream,
 * file dialogs are cancelled, dialogs fail, there is no help. */
typedef struct quor_platform_functions {
    size_t size; /* sizeof(quor_platform_functions) */
    void (*destroyed)(void* user); /* called once, when `user` is no longer needed; may be NULL */
    /* Returns a new INI-file object, whose reference the library takes over. NULL: the built-in one. */
    int32_t (*create_ini_file)(void* user, quor_object* ini_file);
    /* Shows the dialog, an object of the class Dialog (quor_dialog_...), reports to it what the user does, and returns
     * when it is no longer open; if it still is, it is cancelled. The handle belongs to the library and is valid during the call, as are
     * handles of controls, which the host releases. */
    int32_t (*run_dialog)(void* user, quor_object dialog);
    /* Shows the message and waits until it is closed. */
    int32_t (*show_message)(void* user, const quor_message* message);
    /* Returns (quor_answer) the path that the user has chosen, or no text if the user cancelled. */
    int32_t (*ask_for_file)(void* user, const quor_file_request* request);
    /* Command 1 shows the topic with the context number `data`. `result` receives 0 on failure. */
    int32_t (*call_help)(void* user, quor_text help_file, uint32_t command, int32_t data, int32_t* result);
    /* Returns (quor_answer) the user's decimal separator. NULL: ".". Called once per process. */
    int32_t (*decimal_separator)(void* user);
    /* The shape of the mouse pointer: EMousePointer, or a shape of the host's own. */
    int32_t (*get_mouse_pointer)(void* user, int32_t* shape);
    int32_t (*set_mouse_pointer)(void* user, int32_t shape);
    /* Called while a dialog runs: a control may have changed; another control has the focus (0: none); the title has
     * changed; the dialog was closed. The handles belong to the library. NULL: nothing is done. */
    void (*control_changed)(void* user, quor_object dialog, quor_object control);
    void (*focus_moved)(void* user, quor_object dialog, quor_object control);
    void (*title_changed)(void* user, quor_object dialog);
    void (*dialog_hidden)(void* user, quor_object dialog);
} quor_platform_functions;

/* An INI file of a host: see the class INIFile. Only hold, release and abandon may be NULL; they then do nothing. A
 * conversion is read and written in its section and then in those of its settings ("Probe 1 - Settings"); the last one
 * stays selected. */
typedef struct quor_inifile_functions {
    size_t size; /* sizeof(quor_inifile_functions) */
    void (*destroyed)(void* user); /* called once, when `user` is no longer needed; may be NULL */
    /* The file to which the object is bound; get_file_name returns it by quor_answer. */
    int32_t (*put_file_name)(void* user, quor_text file_name);
    int32_t (*get_file_name)(void* user);
    /* The section that reads and writes use; get_section returns it by quor_answer. */
    int32_t (*put_section)(void* user, quor_text section);
    int32_t (*get_section)(void* user);
    /* If the section has the key with a value of that type, sets `found` to True and `value` to the value; read_string
     * returns the text by quor_answer. Otherwise sets `found` to False, which is not an error, and leaves `value` alone: it
     * has the value that stays. */
    int32_t (*read_boolean)(void* user, quor_text key, quor_bool* value, quor_bool* found);
    int32_t (*read_double)(void* user, quor_text key, double* value, quor_bool* found);
    int32_t (*read_integer)(void* user, quor_text key, int16_t* value, quor_bool* found);
    int32_t (*read_string)(void* user, quor_text key, quor_bool* found);
    /* Writes the value under the key. A comment is a remark for people, usually empty. */
    int32_t (*write_boolean)(void* user, quor_text key, quor_bool value);
    int32_t (*write_double)(void* user, quor_text key, double value, quor_text comment);
    int32_t (*write_integer)(void* user, quor_text key, int16_t value, quor_text comment);
    int32_t (*write_string)(void* user, quor_text key, quor_text value);
    /* Bracket writes that are saved together, by the outermost release; abandon replaces a release after a failure. */
    int32_t (*hold)(void* user);
    int32_t (*release)(void* user);
    int32_t (*abandon)(void* user);
} quor_inifile_functions;

/* A registry of a host: see the class Registry. Neither function may be NULL. */
typedef struct quor_registry_functions {
    size_t size; /* sizeof(quor_registry_functions) */
    void (*destroyed)(void* user); /* called once, when `user` is no longer needed; may be NULL */
    /* If there is such a value, sets `found` to True and returns the text by quor_answer. */
    int32_t (*read_value)(void* user, quor_text section, quor_text name, quor_bool* found);
    /* Stores the value for later runs. */
    int32_t (*write_value)(void* user, quor_text section, quor_text name, quor_text value);
} quor_registry_functions;

/* A list of a host: see the class ListControl. No function may be NULL. */
typedef struct quor_list_control_functions {
    size_t size; /* sizeof(quor_list_control_functions) */
    void (*destroyed)(void* user); /* called once, when `user` is no longer needed; may be NULL */
    /* Removes all items. */
    int32_t (*clear)(void* user);
    /* Adds an item at the end. */
    int32_t (*add_item)(void* user, quor_text item);
    /* The index, from 0, of the item that was added last. */
    int32_t (*get_new_index)(void* user, int32_t* index);
    /* Sets the number of an item, from 0. */
    int32_t (*put_item_data)(void* user, int32_t index, int32_t data);
} quor_list_control_functions;

/* Creates an object that calls the functions of the host. If this fails, `destroyed` is not called. */
QUOR_API int32_t quor_platform_from_host(const quor_platform_functions* functions, void* user, quor_object* platform);
QUOR_API int32_t quor_inifile_from_host(const quor_inifile_functions* functions, void* user, quor_object* inifile);
QUOR_API int32_t quor_registry_from_host(const quor_registry_functions* functions, void* user, quor_object* registry);
QUOR_API int32_t quor_list_control_from_host(const quor_list_control_functions* functions, void* user,
                                             quor_object* list_control);
/* The pointer `user` with which the object was created; NULL for an object of the library. */
QUOR_API int32_t quor_host_user(quor_object object, void** user);

/* ---- Enumerations ----------------------------------------------------------------------------------------------- */

/* The conversion types. The values are stored in files. */
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

/* The sub-ranges of the ITS-90 for platinum resistance thermometers. */
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

/* Which of the two ranges of CQuorITS90 is meant. */
typedef int32_t quor_EITS90RangeHL;
enum {
    QUOR_IR_NONE = -1,
    QUOR_IR_LOWRANGE = 0,
    QUOR_IR_HIGHRANGE = 1
};

/* Indices of the coefficients of CQuorITS90LowRange, all dimensionless. */
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

/* Indices of the coefficients of CQuorITS90HighRange, all dimensionless. */
typedef int32_t quor_EITS90HighRangeCoefficients;
enum {
    QUOR_ITS90_HIGH_A = 0,
    QUOR_ITS90_HIGH_B = 1,
    QUOR_ITS90_HIGH_C = 2,
    QUOR_ITS90_HIGH_D = 3
};

/* Indices of the coefficients of CQuorIPTS68. */
typedef int32_t quor_EIPTS68Coefficients;
enum {
    QUOR_IPTS68_R0 = 0, /* resistance at 0 degrees Celsius, ohms */
    QUOR_IPTS68_ALPHA = 1, /* 1/degree Celsius */
    QUOR_IPTS68_DELTA = 2, /* degrees Celsius */
    QUOR_IPTS68_A4 = 3, /* deviation coefficient below 0 degrees Celsius */
    QUOR_IPTS68_C4 = 4 /* deviation coefficient below 0 degrees Celsius */
};

/* The temperature scale on which the instrument reports. */
typedef int32_t quor_EIPTS68Scale;
enum {
    QUOR_SCALE_ITS90 = 0,
    QUOR_SCALE_IPTS68 = 1
};

/* Indices of the coefficients of CQuorCVD. */
typedef int32_t quor_ECVDCoefficients;
enum {
    QUOR_CVD_R0 = 0, /* resistance at 0 degrees Celsius, ohms */
    QUOR_CVD_ALPHA = 1, /* 1/degree Celsius; A, of the same unit, in the polynomial form */
    QUOR_CVD_DELTA = 2, /* degrees Celsius; B, in 1/degree Celsius^2, in the polynomial form */
    QUOR_CVD_BETA = 3 /* degrees Celsius; C, in 1/degree Celsius^4, in the polynomial form */
};

/* Index of the coefficient of CQuorPT100. */
typedef int32_t quor_EPT100Coefficients;
enum {
    QUOR_PT100_R0 = 0 /* resistance at 0 degrees Celsius, ohms */
};

/* Indices of the coefficients of CQuorHTPRT. */
typedef int32_t quor_EHTPRTCoefficients;
enum {
    QUOR_HTPRT_RTPW = 0, /* resistance at the triple point of water, ohms */
    QUOR_HTPRT_A = 1, /* dimensionless */
    QUOR_HTPRT_B = 2 /* dimensionless */
};

/* The direction of a thermistor polynomial. */
typedef int32_t quor_EThermistorConvType;
enum {
    QUOR_TCT_THRMT_R = 0, /* temperature from resistance, T(R) */
    QUOR_TCT_THRMR_T = 1 /* resistance from temperature, R(T) */
};

/* Indices of the coefficients of CQuorThermistor; A0 to A3 and B0 to B3 are the same four. */
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

/* Indices of the coefficients of CQuorPolynomial, one for each power. */
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

/* Indices of the coefficients of CQuorTCPolynomial, of which CQuorTCTypePoly has the first four: C[i] is in
 * millivolts per degree Celsius to the i-th power. */
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

/* Indices of the points of CQuorTCTable; temperatures and voltages are those of the same ten. */
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

/* Indices of the points of CQuorTCTypeX, whose temperatures and offsets are those of the same three, and of its DC
 * coefficients. */
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

/* The standard thermocouple types. The values are stored in files. */
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

/* Shapes of the mouse pointer that the library sets. */
typedef int32_t quor_EMousePointer;
enum {
    QUOR_POINTER_DEFAULT = 0,
    QUOR_POINTER_HOURGLASS = 11
};

/* The icon of a message: a failure, or information. */
typedef int32_t quor_EMessageIcon;
enum {
    QUOR_ICON_CRITICAL = 16,
    QUOR_ICON_INFORMATION = 64
};

/* Whether a file dialog chooses a file to read or one to write. */
typedef int32_t quor_EFileDialogKind;
enum {
    QUOR_FILE_DIALOG_OPEN = 0,
    QUOR_FILE_DIALOG_SAVE = 1
};

/* What a control is. */
typedef int32_t quor_EControlKind;
enum {
    QUOR_CONTROL_LABEL = 0,
    QUOR_CONTROL_PUSH_BUTTON = 1,
    QUOR_CONTROL_TEXT_BOX = 2,
    QUOR_CONTROL_DROP_DOWN_LIST = 3,
    QUOR_CONTROL_FRAME = 4,
    QUOR_CONTROL_TAB_STRIP = 5
};

/* Why a call of a ProbeFile has failed. */
typedef int32_t quor_EProbeFileError;
enum {
    QUOR_PROBE_NO_SUCH_SECTION = 1, /* there is no such section */
    QUOR_PROBE_NO_RECORD = 2, /* the section exists, but is not the record of a probe */
    QUOR_PROBE_TYPE_UNREADABLE = 3, /* the type cannot be read; ErrorOther is its text */
    QUOR_PROBE_UNKNOWN_TYPE = 4, /* no conversion has the code of its type; ErrorOther is the code */
    QUOR_PROBE_INCOMPLETE = 5, /* something is missing or cannot be read: see ProblemCount */
    QUOR_PROBE_BAD_NAME = 6, /* a section cannot have the name */
    QUOR_PROBE_NAME_IS_TAKEN = 7, /* another section has the name, or another probe of one Write */
    QUOR_PROBE_NAME_OF_SETTINGS = 8, /* a probe, ErrorOther, keeps its settings in a section of that name */
    QUOR_PROBE_SETTINGS_ARE_TAKEN = 9, /* its settings need the section ErrorOther, which exists already */
    QUOR_PROBE_SECTION_IS_SHARED = 10, /* a section of the probe also belongs to another probe, ErrorOther */
    QUOR_PROBE_OF_ANOTHER_TYPE = 11, /* the section has a probe of another type, ErrorOther */
    QUOR_PROBE_DOES_NOT_FIT_FILE = 12, /* the section of a stand-alone settings file is not for the type, or not for a renamed probe */
    QUOR_PROBE_CANNOT_BE_WRITTEN = 13, /* its conversion has raised an error, which is raised here */
    QUOR_PROBE_SECTION_OF_HOST = 14, /* the section exists and is not the record of a probe: none is written into it */
    QUOR_PROBE_INCONSISTENT = 15 /* what would be read back differs from what the conversion holds: a count below zero, settings of another type */
};

/* What can be wrong with a probe or its file; from 101 on warnings. */
typedef int32_t quor_EProbeProblem;
enum {
    QUOR_PROBLEM_SECTION_MISSING = 1,
    QUOR_PROBLEM_KEY_MISSING = 2,
    QUOR_PROBLEM_VALUE_UNREADABLE = 3, /* not a value of the kind that the key needs: a number with a comma, text instead of a code */
    QUOR_PROBLEM_UNKNOWN_TYPE = 4, /* no conversion type has the code */
    QUOR_PROBLEM_RECORD_REFUSED = 5, /* the settings object refuses the record and gives the reason */
    QUOR_PROBLEM_VALUE_REFUSED = 6, /* a value, such as a count below zero, with which no record can be read */
    QUOR_PROBLEM_VALUE_REPLACED = 7, /* the settings object uses another value instead */
    QUOR_PROBLEM_UNKNOWN_KEY = 8, /* a record of this type and size has no such key */
    QUOR_PROBLEM_DUPLICATE_KEY = 9, /* the first one is read */
    QUOR_PROBLEM_DUPLICATE_SECTION = 10, /* the first one is read */
    QUOR_PROBLEM_UNCLOSED_HEADER = 11, /* a section header without "]": the record below it cannot be read */
    QUOR_PROBLEM_MALFORMED_LINE = 12, /* no key=value */
    QUOR_PROBLEM_KEPT_FILE = 13, /* next to the file: what another program had put in its place */
    QUOR_PROBLEM_INTERRUPTED_SAVE = 14, /* next to the file: left over from an interrupted save */
    QUOR_PROBLEM_LINE_ENDS_IN_CR = 15, /* a header or key after a lone carriage return, which is not read */
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
    QUOR_WARNING_COUNT_DOES_NOT_FIT = 121, /* values beside a count that it leaves out are not 0 */
    QUOR_WARNING_UNKNOWN_CODE = 122, /* no thermocouple type has the code */
    QUOR_WARNING_NO_SUCH_PROBE = 123 /* settings of a probe that is not there */
};

/* ---- Classes ---------------------------------------------------------------------------------------------------- */

/* CQuorConversion */

/* Creates an object of the class CQuorConversion; the caller owns the reference in `result`. `platform` shows its
 * dialogs and messages (quor_platform_from_host). 0 is none: messages go to the diagnostic stream, and dialogs
 * fail. */
QUOR_API int32_t quor_conversion_create(quor_object platform, quor_object* result);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_conversion_get_AllowEdit(quor_object conversion, quor_bool* result);
QUOR_API int32_t quor_conversion_put_AllowEdit(quor_object conversion, quor_bool value);
/* The help file of the whole library in this process, not of this object. */
QUOR_API int32_t quor_conversion_get_HelpFile(quor_object conversion, quor_text* result);
QUOR_API int32_t quor_conversion_put_HelpFile(quor_object conversion, quor_text value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_conversion_SetRegistry(quor_object conversion, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_conversion_get_Registry(quor_object conversion, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_conversion_get_Changed(quor_object conversion, quor_bool* result);
QUOR_API int32_t quor_conversion_put_Changed(quor_object conversion, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_conversion_get_FilePath(quor_object conversion, quor_text* result);
QUOR_API int32_t quor_conversion_put_FilePath(quor_object conversion, quor_text value);
/* The settings object of the current type; none when the type has none. */
QUOR_API int32_t quor_conversion_get_Settings(quor_object conversion, quor_object* result);
/* CONV_NONE at first. Another value replaces the settings object by a new one. */
QUOR_API int32_t quor_conversion_get_ConversionType(quor_object conversion, quor_EQuorConversionType* result);
QUOR_API int32_t quor_conversion_put_ConversionType(quor_object conversion, quor_EQuorConversionType value);
/* The name of a conversion type, "<unknown>" for a code without one. -2: of the settings object. */
QUOR_API int32_t quor_conversion_ConversionName(quor_object conversion, int32_t Value, quor_text* result);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_conversion_Edit(quor_object conversion, quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_conversion_WriteToFile(quor_object conversion, quor_object* INIFile, quor_text fname,
                                             quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.
 * Beware: a section that does not exist, or has no type, makes the conversion an ITS-90 one, and its coefficients
 * are lost. Read of ProbeFile refuses such a section. */
QUOR_API int32_t quor_conversion_ReadFromFile(quor_object conversion, quor_object* INIFile, quor_text fname,
                                              quor_text secname, quor_bool* result);

/* CQuorITS90 */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_its90_get_AllowEdit(quor_object its90, quor_bool* result);
QUOR_API int32_t quor_its90_put_AllowEdit(quor_object its90, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_its90_SetRegistry(quor_object its90, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_its90_get_Registry(quor_object its90, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
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
/* How the dialog shows RTPW: a value format. Never a change. */
QUOR_API int32_t quor_its90_get_RTPWFormat(quor_object its90, quor_text* result);
QUOR_API int32_t quor_its90_put_RTPWFormat(quor_object its90, quor_text value);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_its90_Edit(quor_object its90, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_its90_GetName(quor_object its90, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_its90_OpenFile(quor_object its90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                     quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_its90_SaveFileAs(quor_object its90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                       quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_its90_WriteToFile(quor_object its90, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_its90_ReadFromFile(quor_object its90, quor_object* INIFile, quor_text fname, quor_text secname,
                                         quor_bool* result);

/* CQuorITS90LowRange */

/* Whether the labels of the dialog include the range number; True at first. Never a change. */
QUOR_API int32_t quor_its90_low_range_get_ShowCoefRange(quor_object its90_low_range, quor_bool* result);
QUOR_API int32_t quor_its90_low_range_put_ShowCoefRange(quor_object its90_low_range, quor_bool value);
/* Whether the dialog lets the user choose another range; True at first. Never a change. */
QUOR_API int32_t quor_its90_low_range_get_AllowChangeRange(quor_object its90_low_range, quor_bool* result);
QUOR_API int32_t quor_its90_low_range_put_AllowChangeRange(quor_object its90_low_range, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_its90_low_range_SetRegistry(quor_object its90_low_range, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_its90_low_range_get_Registry(quor_object its90_low_range, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_its90_low_range_get_Changed(quor_object its90_low_range, quor_bool* result);
QUOR_API int32_t quor_its90_low_range_put_Changed(quor_object its90_low_range, quor_bool value);
/* True at first. False selects the first range that only this side has. */
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
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_its90_low_range_get_Coefficients(quor_object its90_low_range,
                                                       quor_EITS90LowRangeCoefficients Index, double* result);
QUOR_API int32_t quor_its90_low_range_put_Coefficients(quor_object its90_low_range,
                                                       quor_EITS90LowRangeCoefficients Index, double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_its90_low_range_get_ValueFormat(quor_object its90_low_range, quor_text* result);
QUOR_API int32_t quor_its90_low_range_put_ValueFormat(quor_object its90_low_range, quor_text value);
/* Fills a list with "<none>" and the ranges, each with its number as item data. */
QUOR_API int32_t quor_its90_low_range_FillRangeCombo(quor_object its90_low_range, quor_object ctrl);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_its90_low_range_WriteToFile(quor_object its90_low_range, quor_object* INIFile, quor_text fname,
                                                  quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_its90_low_range_ReadFromFile(quor_object its90_low_range, quor_object* INIFile, quor_text fname,
                                                   quor_text secname, quor_bool* result);

/* CQuorITS90HighRange */

/* Whether the labels of the dialog include the range number; True at first. Never a change. */
QUOR_API int32_t quor_its90_high_range_get_ShowCoefRange(quor_object its90_high_range, quor_bool* result);
QUOR_API int32_t quor_its90_high_range_put_ShowCoefRange(quor_object its90_high_range, quor_bool value);
/* Whether the dialog lets the user choose another range; True at first. Never a change. */
QUOR_API int32_t quor_its90_high_range_get_AllowChangeRange(quor_object its90_high_range, quor_bool* result);
QUOR_API int32_t quor_its90_high_range_put_AllowChangeRange(quor_object its90_high_range, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_its90_high_range_SetRegistry(quor_object its90_high_range, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_its90_high_range_get_Registry(quor_object its90_high_range, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_its90_high_range_get_Changed(quor_object its90_high_range, quor_bool* result);
QUOR_API int32_t quor_its90_high_range_put_Changed(quor_object its90_high_range, quor_bool value);
/* True at first. False selects the first range that only this side has. */
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
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_its90_high_range_get_Coefficients(quor_object its90_high_range,
                                                        quor_EITS90HighRangeCoefficients Index, double* result);
QUOR_API int32_t quor_its90_high_range_put_Coefficients(quor_object its90_high_range,
                                                        quor_EITS90HighRangeCoefficients Index, double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_its90_high_range_get_ValueFormat(quor_object its90_high_range, quor_text* result);
QUOR_API int32_t quor_its90_high_range_put_ValueFormat(quor_object its90_high_range, quor_text value);
/* Fills a list with "<none>" and the ranges, each with its number as item data. */
QUOR_API int32_t quor_its90_high_range_FillRangeCombo(quor_object its90_high_range, quor_object ctrl);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_its90_high_range_WriteToFile(quor_object its90_high_range, quor_object* INIFile,
                                                   quor_text fname, quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_its90_high_range_ReadFromFile(quor_object its90_high_range, quor_object* INIFile,
                                                    quor_text fname, quor_text secname, quor_bool* result);

/* CQuorIPTS68 */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_ipts68_get_AllowEdit(quor_object ipts68, quor_bool* result);
QUOR_API int32_t quor_ipts68_put_AllowEdit(quor_object ipts68, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_ipts68_SetRegistry(quor_object ipts68, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_ipts68_get_Registry(quor_object ipts68, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
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
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_ipts68_get_Coefficients(quor_object ipts68, quor_EIPTS68Coefficients Index, double* result);
QUOR_API int32_t quor_ipts68_put_Coefficients(quor_object ipts68, quor_EIPTS68Coefficients Index, double value);
/* How the dialog shows a coefficient. Never a change. */
QUOR_API int32_t quor_ipts68_get_ValueFormat(quor_object ipts68, quor_EIPTS68Coefficients Index, quor_text* result);
QUOR_API int32_t quor_ipts68_put_ValueFormat(quor_object ipts68, quor_EIPTS68Coefficients Index, quor_text value);
/* Fills a list with the two scales, each with its value as item data. */
QUOR_API int32_t quor_ipts68_FillScaleCombo(quor_object ipts68, quor_object ctrl);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_ipts68_Edit(quor_object ipts68, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_ipts68_GetName(quor_object ipts68, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_ipts68_OpenFile(quor_object ipts68, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                      quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_ipts68_SaveFileAs(quor_object ipts68, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                        quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_ipts68_WriteToFile(quor_object ipts68, quor_object* INIFile, quor_text fname,
                                         quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_ipts68_ReadFromFile(quor_object ipts68, quor_object* INIFile, quor_text fname,
                                          quor_text secname, quor_bool* result);

/* CQuorCVD */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_cvd_get_AllowEdit(quor_object cvd, quor_bool* result);
QUOR_API int32_t quor_cvd_put_AllowEdit(quor_object cvd, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_cvd_SetRegistry(quor_object cvd, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_cvd_get_Registry(quor_object cvd, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_cvd_get_Changed(quor_object cvd, quor_bool* result);
QUOR_API int32_t quor_cvd_put_Changed(quor_object cvd, quor_bool value);
/* 4 at first. A negative value refuses every index until a valid one is set. */
QUOR_API int32_t quor_cvd_get_NumCoefficients(quor_object cvd, int16_t* result);
QUOR_API int32_t quor_cvd_put_NumCoefficients(quor_object cvd, int16_t value);
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_cvd_get_Coefficients(quor_object cvd, quor_ECVDCoefficients Index, double* result);
QUOR_API int32_t quor_cvd_put_Coefficients(quor_object cvd, quor_ECVDCoefficients Index, double value);
/* Whether the coefficients are those of the polynomial form. Never a change. */
QUOR_API int32_t quor_cvd_get_UsePolynomial(quor_object cvd, quor_bool* result);
QUOR_API int32_t quor_cvd_put_UsePolynomial(quor_object cvd, quor_bool value);
/* How the dialog shows a coefficient. Never a change. */
QUOR_API int32_t quor_cvd_get_ValueFormat(quor_object cvd, quor_ECVDCoefficients Index, quor_text* result);
QUOR_API int32_t quor_cvd_put_ValueFormat(quor_object cvd, quor_ECVDCoefficients Index, quor_text value);
/* The greatest useful number of coefficients. */
QUOR_API int32_t quor_cvd_MaxCoefficients(quor_object cvd, int16_t* result);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_cvd_Edit(quor_object cvd, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_cvd_GetName(quor_object cvd, quor_text* result);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_cvd_get_FilePath(quor_object cvd, quor_text* result);
QUOR_API int32_t quor_cvd_put_FilePath(quor_object cvd, quor_text value);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_cvd_OpenFile(quor_object cvd, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                   quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_cvd_SaveFileAs(quor_object cvd, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                     quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_cvd_WriteToFile(quor_object cvd, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_cvd_ReadFromFile(quor_object cvd, quor_object* INIFile, quor_text fname, quor_text secname,
                                       quor_bool* result);

/* CQuorPT100 */

/* Creates an object of the class CQuorPT100; the caller owns the reference in `result`. `platform` shows its
 * dialogs and messages (quor_platform_from_host). 0 is none: messages go to the diagnostic stream, and dialogs
 * fail. */
QUOR_API int32_t quor_pt100_create(quor_object platform, quor_object* result);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_pt100_get_AllowEdit(quor_object pt100, quor_bool* result);
QUOR_API int32_t quor_pt100_put_AllowEdit(quor_object pt100, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_pt100_SetRegistry(quor_object pt100, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_pt100_get_Registry(quor_object pt100, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_pt100_get_Changed(quor_object pt100, quor_bool* result);
QUOR_API int32_t quor_pt100_put_Changed(quor_object pt100, quor_bool value);
/* 1 at first. A negative value refuses every index until a valid one is set. */
QUOR_API int32_t quor_pt100_get_NumCoefficients(quor_object pt100, int16_t* result);
QUOR_API int32_t quor_pt100_put_NumCoefficients(quor_object pt100, int16_t value);
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_pt100_get_Coefficients(quor_object pt100, quor_EPT100Coefficients Index, double* result);
QUOR_API int32_t quor_pt100_put_Coefficients(quor_object pt100, quor_EPT100Coefficients Index, double value);
/* How the dialog shows a coefficient. Never a change. */
QUOR_API int32_t quor_pt100_get_ValueFormat(quor_object pt100, quor_EPT100Coefficients Index, quor_text* result);
QUOR_API int32_t quor_pt100_put_ValueFormat(quor_object pt100, quor_EPT100Coefficients Index, quor_text value);
/* The greatest useful number of coefficients. */
QUOR_API int32_t quor_pt100_MaxCoefficients(quor_object pt100, int16_t* result);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_pt100_Edit(quor_object pt100, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_pt100_GetName(quor_object pt100, quor_text* result);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_pt100_get_FilePath(quor_object pt100, quor_text* result);
QUOR_API int32_t quor_pt100_put_FilePath(quor_object pt100, quor_text value);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_pt100_OpenFile(quor_object pt100, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                     quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_pt100_SaveFileAs(quor_object pt100, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                       quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_pt100_WriteToFile(quor_object pt100, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_pt100_ReadFromFile(quor_object pt100, quor_object* INIFile, quor_text fname, quor_text secname,
                                         quor_bool* result);

/* CQuorHTPRT */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_htprt_get_AllowEdit(quor_object htprt, quor_bool* result);
QUOR_API int32_t quor_htprt_put_AllowEdit(quor_object htprt, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_htprt_SetRegistry(quor_object htprt, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_htprt_get_Registry(quor_object htprt, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_htprt_get_Changed(quor_object htprt, quor_bool* result);
QUOR_API int32_t quor_htprt_put_Changed(quor_object htprt, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_htprt_get_FilePath(quor_object htprt, quor_text* result);
QUOR_API int32_t quor_htprt_put_FilePath(quor_object htprt, quor_text value);
/* How many coefficients there are. */
QUOR_API int32_t quor_htprt_get_NumCoefficients(quor_object htprt, int16_t* result);
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_htprt_get_Coefficients(quor_object htprt, quor_EHTPRTCoefficients Index, double* result);
QUOR_API int32_t quor_htprt_put_Coefficients(quor_object htprt, quor_EHTPRTCoefficients Index, double value);
/* How the dialog shows a coefficient. Never a change. */
QUOR_API int32_t quor_htprt_get_ValueFormat(quor_object htprt, quor_EHTPRTCoefficients Index, quor_text* result);
QUOR_API int32_t quor_htprt_put_ValueFormat(quor_object htprt, quor_EHTPRTCoefficients Index, quor_text value);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_htprt_Edit(quor_object htprt, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_htprt_GetName(quor_object htprt, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_htprt_OpenFile(quor_object htprt, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                     quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_htprt_SaveFileAs(quor_object htprt, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                       quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_htprt_WriteToFile(quor_object htprt, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_htprt_ReadFromFile(quor_object htprt, quor_object* INIFile, quor_text fname, quor_text secname,
                                         quor_bool* result);

/* CQuorWT90 */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_wt90_get_AllowEdit(quor_object wt90, quor_bool* result);
QUOR_API int32_t quor_wt90_put_AllowEdit(quor_object wt90, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_wt90_SetRegistry(quor_object wt90, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_wt90_get_Registry(quor_object wt90, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_wt90_get_Changed(quor_object wt90, quor_bool* result);
QUOR_API int32_t quor_wt90_put_Changed(quor_object wt90, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_wt90_get_FilePath(quor_object wt90, quor_text* result);
QUOR_API int32_t quor_wt90_put_FilePath(quor_object wt90, quor_text value);
/* Resistance at the triple point of water, ohms. */
QUOR_API int32_t quor_wt90_get_RTPW(quor_object wt90, double* result);
QUOR_API int32_t quor_wt90_put_RTPW(quor_object wt90, double value);
/* How the dialog shows RTPW: a value format. Never a change. */
QUOR_API int32_t quor_wt90_get_RTPWFormat(quor_object wt90, quor_text* result);
QUOR_API int32_t quor_wt90_put_RTPWFormat(quor_object wt90, quor_text value);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_wt90_Edit(quor_object wt90, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_wt90_GetName(quor_object wt90, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_wt90_OpenFile(quor_object wt90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                    quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_wt90_SaveFileAs(quor_object wt90, int32_t hwnd, quor_text Filename, quor_text* Filename_out,
                                      quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_wt90_WriteToFile(quor_object wt90, quor_object* INIFile, quor_text fname, quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_wt90_ReadFromFile(quor_object wt90, quor_object* INIFile, quor_text fname, quor_text secname,
                                        quor_bool* result);

/* CQuorThermistor */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_thermistor_get_AllowEdit(quor_object thermistor, quor_bool* result);
QUOR_API int32_t quor_thermistor_put_AllowEdit(quor_object thermistor, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_thermistor_SetRegistry(quor_object thermistor, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_thermistor_get_Registry(quor_object thermistor, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
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
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_thermistor_get_Coefficients(quor_object thermistor, quor_EThermistorCoefficients Index,
                                                  double* result);
QUOR_API int32_t quor_thermistor_put_Coefficients(quor_object thermistor, quor_EThermistorCoefficients Index,
                                                  double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_thermistor_get_ValueFormat(quor_object thermistor, quor_text* result);
QUOR_API int32_t quor_thermistor_put_ValueFormat(quor_object thermistor, quor_text value);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_thermistor_Edit(quor_object thermistor, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_thermistor_GetName(quor_object thermistor, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_thermistor_OpenFile(quor_object thermistor, int32_t hwnd, quor_text Filename,
                                          quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_thermistor_SaveFileAs(quor_object thermistor, int32_t hwnd, quor_text Filename,
                                            quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_thermistor_WriteToFile(quor_object thermistor, quor_object* INIFile, quor_text fname,
                                             quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_thermistor_ReadFromFile(quor_object thermistor, quor_object* INIFile, quor_text fname,
                                              quor_text secname, quor_bool* result);

/* CQuorPolynomial */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_polynomial_get_AllowEdit(quor_object polynomial, quor_bool* result);
QUOR_API int32_t quor_polynomial_put_AllowEdit(quor_object polynomial, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_polynomial_SetRegistry(quor_object polynomial, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_polynomial_get_Registry(quor_object polynomial, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
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
/* The smallest order: 4. */
QUOR_API int32_t quor_polynomial_get_MinOrder(quor_object polynomial, int16_t* result);
/* The greatest order: 10. */
QUOR_API int32_t quor_polynomial_get_MaxOrder(quor_object polynomial, int16_t* result);
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_polynomial_put_Coefficients(quor_object polynomial, quor_EPolynomialCoefficients Index,
                                                  double value);
QUOR_API int32_t quor_polynomial_get_Coefficients(quor_object polynomial, quor_EPolynomialCoefficients Index,
                                                  double* result);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_polynomial_put_ValueFormat(quor_object polynomial, quor_text value);
QUOR_API int32_t quor_polynomial_get_ValueFormat(quor_object polynomial, quor_text* result);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_polynomial_Edit(quor_object polynomial, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_polynomial_GetName(quor_object polynomial, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_polynomial_OpenFile(quor_object polynomial, int32_t hwnd, quor_text Filename,
                                          quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_polynomial_SaveFileAs(quor_object polynomial, int32_t hwnd, quor_text Filename,
                                            quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_polynomial_WriteToFile(quor_object polynomial, quor_object* INIFile, quor_text fname,
                                             quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_polynomial_ReadFromFile(quor_object polynomial, quor_object* INIFile, quor_text fname,
                                              quor_text secname, quor_bool* result);
/* The letter in the labels of the dialog: "A" gives "A0", "A1" and so on. Never a change. */
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
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_tc_polynomial_SetRegistry(quor_object tc_polynomial, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_tc_polynomial_get_Registry(quor_object tc_polynomial, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_tc_polynomial_get_Changed(quor_object tc_polynomial, quor_bool* result);
QUOR_API int32_t quor_tc_polynomial_put_Changed(quor_object tc_polynomial, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_tc_polynomial_get_FilePath(quor_object tc_polynomial, quor_text* result);
QUOR_API int32_t quor_tc_polynomial_put_FilePath(quor_object tc_polynomial, quor_text value);
/* 16 at first. A negative value is stored and then error 9. */
QUOR_API int32_t quor_tc_polynomial_get_NumCoefficients(quor_object tc_polynomial, int16_t* result);
QUOR_API int32_t quor_tc_polynomial_put_NumCoefficients(quor_object tc_polynomial, int16_t value);
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
QUOR_API int32_t quor_tc_polynomial_get_Coefficients(quor_object tc_polynomial, quor_ETCPolynomialCoefficients Index,
                                                     double* result);
QUOR_API int32_t quor_tc_polynomial_put_Coefficients(quor_object tc_polynomial, quor_ETCPolynomialCoefficients Index,
                                                     double value);
/* How the dialog shows all coefficients. Never a change. */
QUOR_API int32_t quor_tc_polynomial_get_ValueFormat(quor_object tc_polynomial, quor_text* result);
QUOR_API int32_t quor_tc_polynomial_put_ValueFormat(quor_object tc_polynomial, quor_text value);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_tc_polynomial_Edit(quor_object tc_polynomial, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_tc_polynomial_GetName(quor_object tc_polynomial, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_tc_polynomial_OpenFile(quor_object tc_polynomial, int32_t hwnd, quor_text Filename,
                                             quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_tc_polynomial_SaveFileAs(quor_object tc_polynomial, int32_t hwnd, quor_text Filename,
                                               quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_tc_polynomial_WriteToFile(quor_object tc_polynomial, quor_object* INIFile, quor_text fname,
                                                quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_tc_polynomial_ReadFromFile(quor_object tc_polynomial, quor_object* INIFile, quor_text fname,
                                                 quor_text secname, quor_bool* result);

/* CQuorTCTable */

/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_tc_table_get_AllowEdit(quor_object tc_table, quor_bool* result);
QUOR_API int32_t quor_tc_table_put_AllowEdit(quor_object tc_table, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_tc_table_SetRegistry(quor_object tc_table, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_tc_table_get_Registry(quor_object tc_table, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
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
/* The voltage of a point, in the unit that VoltageScale names. Error 0x800401F5 for an invalid index. */
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
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_tc_table_Edit(quor_object tc_table, quor_bool* result);
/* The display name. */
QUOR_API int32_t quor_tc_table_GetName(quor_object tc_table, quor_text* result);
/* Fills a list with the counts that can be chosen, each with its number as item data. */
QUOR_API int32_t quor_tc_table_FillPointsCombo(quor_object tc_table, quor_object ctrl);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_tc_table_OpenFile(quor_object tc_table, int32_t hwnd, quor_text Filename,
                                        quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_tc_table_SaveFileAs(quor_object tc_table, int32_t hwnd, quor_text Filename,
                                          quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_tc_table_WriteToFile(quor_object tc_table, quor_object* INIFile, quor_text fname,
                                           quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_tc_table_ReadFromFile(quor_object tc_table, quor_object* INIFile, quor_text fname,
                                            quor_text secname, quor_bool* result);

/* CQuorTCTypeX */

/* Whether the dialog shows the DC coefficients; True at first. Never a change. */
QUOR_API int32_t quor_tc_typex_get_ShowDCCoefs(quor_object tc_typex, quor_bool* result);
QUOR_API int32_t quor_tc_typex_put_ShowDCCoefs(quor_object tc_typex, quor_bool value);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_tc_typex_get_AllowEdit(quor_object tc_typex, quor_bool* result);
QUOR_API int32_t quor_tc_typex_put_AllowEdit(quor_object tc_typex, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_tc_typex_SetRegistry(quor_object tc_typex, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_tc_typex_get_Registry(quor_object tc_typex, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
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
/* The name of a thermocouple type, such as "K". -2: of the current one. */
QUOR_API int32_t quor_tc_typex_GetTCTypeName(quor_object tc_typex, int32_t tc, quor_text* result);
/* Fills a list with the types that have names, each with its value as item data. */
QUOR_API int32_t quor_tc_typex_FillTCTypeNameCombo(quor_object tc_typex, quor_object ctrl);
/* 3 at first. A value above 3 is ignored; a negative one is stored and then error 9. */
QUOR_API int32_t quor_tc_typex_get_NumPoints(quor_object tc_typex, int16_t* result);
QUOR_API int32_t quor_tc_typex_put_NumPoints(quor_object tc_typex, int16_t value);
/* The temperature of a deviation point, in the unit that TempScale names. An invalid index is reported to the user
 * only; the call raises no error. */
QUOR_API int32_t quor_tc_typex_get_Temperatures(quor_object tc_typex, quor_ETCTypeXCoefficients Index,
                                                double* result);
QUOR_API int32_t quor_tc_typex_put_Temperatures(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double value);
/* A DC coefficient. Error 0x800401F5 for any other index. */
QUOR_API int32_t quor_tc_typex_get_Coefficients(quor_object tc_typex, quor_ETCTypeXCoefficients Index,
                                                double* result);
QUOR_API int32_t quor_tc_typex_put_Coefficients(quor_object tc_typex, quor_ETCTypeXCoefficients Index, double value);
/* The offset of a deviation point, in the unit that OffsetScale names. An invalid index is reported to the user
 * only; the call raises no error. */
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
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_tc_typex_Edit(quor_object tc_typex, quor_bool* result);
/* The name of a type, such as "K". -2: "TC Type " and the name of the current one. */
QUOR_API int32_t quor_tc_typex_GetName(quor_object tc_typex, int32_t tc, quor_text* result);
/* Fills a list with the counts that can be chosen, each with its number as item data. */
QUOR_API int32_t quor_tc_typex_FillPointsCombo(quor_object tc_typex, quor_object ctrl);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_tc_typex_OpenFile(quor_object tc_typex, int32_t hwnd, quor_text Filename,
                                        quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_tc_typex_SaveFileAs(quor_object tc_typex, int32_t hwnd, quor_text Filename,
                                          quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_tc_typex_WriteToFile(quor_object tc_typex, quor_object* INIFile, quor_text fname,
                                           quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_tc_typex_ReadFromFile(quor_object tc_typex, quor_object* INIFile, quor_text fname,
                                            quor_text secname, quor_bool* result);

/* CQuorTCTypePoly */

/* Creates an object of the class CQuorTCTypePoly; the caller owns the reference in `result`. `platform` shows its
 * dialogs and messages (quor_platform_from_host). 0 is none: messages go to the diagnostic stream, and dialogs
 * fail. */
QUOR_API int32_t quor_tc_typepoly_create(quor_object platform, quor_object* result);
/* Whether dialogs may change values; True at first. */
QUOR_API int32_t quor_tc_typepoly_get_AllowEdit(quor_object tc_typepoly, quor_bool* result);
QUOR_API int32_t quor_tc_typepoly_put_AllowEdit(quor_object tc_typepoly, quor_bool value);
/* Sets the host's registry, which may be none. */
QUOR_API int32_t quor_tc_typepoly_SetRegistry(quor_object tc_typepoly, quor_object* vData);
/* The registry that was set; none at first. */
QUOR_API int32_t quor_tc_typepoly_get_Registry(quor_object tc_typepoly, quor_object* result);
/* Whether a value has changed since the host last cleared the flag. Saving does not clear it. */
QUOR_API int32_t quor_tc_typepoly_get_Changed(quor_object tc_typepoly, quor_bool* result);
QUOR_API int32_t quor_tc_typepoly_put_Changed(quor_object tc_typepoly, quor_bool value);
/* The folder in which file dialogs start; empty at first. */
QUOR_API int32_t quor_tc_typepoly_get_FilePath(quor_object tc_typepoly, quor_text* result);
QUOR_API int32_t quor_tc_typepoly_put_FilePath(quor_object tc_typepoly, quor_text value);
/* 4 at first. A negative value is stored and then error 9. */
QUOR_API int32_t quor_tc_typepoly_get_NumCoefficients(quor_object tc_typepoly, int16_t* result);
QUOR_API int32_t quor_tc_typepoly_put_NumCoefficients(quor_object tc_typepoly, int16_t value);
/* A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index. */
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
/* The name of a thermocouple type, such as "K". -2: of the current one. */
QUOR_API int32_t quor_tc_typepoly_GetTCTypeName(quor_object tc_typepoly, int32_t tc, quor_text* result);
/* Fills a list with the types that have names, each with its value as item data. */
QUOR_API int32_t quor_tc_typepoly_FillTCTypeNameCombo(quor_object tc_typepoly, quor_object ctrl);
/* Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user. */
QUOR_API int32_t quor_tc_typepoly_Edit(quor_object tc_typepoly, quor_bool* result);
/* The name of a type, such as "K". -2: "TC Type " and the name of the current one. */
QUOR_API int32_t quor_tc_typepoly_GetName(quor_object tc_typepoly, int32_t tc, quor_text* result);
/* Reads the settings file Filename, or the one that the user chooses. False if the user cancelled. */
QUOR_API int32_t quor_tc_typepoly_OpenFile(quor_object tc_typepoly, int32_t hwnd, quor_text Filename,
                                           quor_text* Filename_out, quor_bool* result);
/* Asks for a file and writes a settings file. False if the user cancelled. */
QUOR_API int32_t quor_tc_typepoly_SaveFileAs(quor_object tc_typepoly, int32_t hwnd, quor_text Filename,
                                             quor_text* Filename_out, quor_bool* result);
/* Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used
 * otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile,
 * the call raises no error. */
QUOR_API int32_t quor_tc_typepoly_WriteToFile(quor_object tc_typepoly, quor_object* INIFile, quor_text fname,
                                              quor_text secname);
/* Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. */
QUOR_API int32_t quor_tc_typepoly_ReadFromFile(quor_object tc_typepoly, quor_object* INIFile, quor_text fname,
                                               quor_text secname, quor_bool* result);

/* INIFile. An INI file: the built-in store, or one of a host (quor_inifile_from_host). */

/* Creates an object of the class INIFile; the caller owns the reference in `result`. */
QUOR_API int32_t quor_inifile_create(quor_object* result);
/* The file that the object is bound to. Setting it touches no file. */
QUOR_API int32_t quor_inifile_put_FileName(quor_object inifile, quor_text value);
QUOR_API int32_t quor_inifile_get_FileName(quor_object inifile, quor_text* result);
/* The section that reads and writes use. */
QUOR_API int32_t quor_inifile_put_Section(quor_object inifile, quor_text value);
QUOR_API int32_t quor_inifile_get_Section(quor_object inifile, quor_text* result);
/* True if the key was found with a value of that type, which Value then is. */
QUOR_API int32_t quor_inifile_ReadBoolean(quor_object inifile, quor_text Key, quor_bool* Value, quor_bool* result);
/* True if the key was found with a value of that type, which Value then is. */
QUOR_API int32_t quor_inifile_ReadDouble(quor_object inifile, quor_text Key, double* Value, quor_bool* result);
/* True if the key was found with a value of that type, which Value then is. */
QUOR_API int32_t quor_inifile_ReadInteger(quor_object inifile, quor_text Key, int16_t* Value, quor_bool* result);
/* True if the key was found; Value is then its text. */
QUOR_API int32_t quor_inifile_ReadString(quor_object inifile, quor_text Key, quor_text Value, quor_text* Value_out,
                                         quor_bool* result);
/* Writes a value under a key. */
QUOR_API int32_t quor_inifile_WriteBoolean(quor_object inifile, quor_text Key, quor_bool Value);
/* Writes a value under a key, followed by Comment in the file. */
QUOR_API int32_t quor_inifile_WriteDouble(quor_object inifile, quor_text Key, double Value, quor_text Comment);
/* Writes a value under a key, followed by Comment in the file. */
QUOR_API int32_t quor_inifile_WriteInteger(quor_object inifile, quor_text Key, int16_t Value, quor_text Comment);
/* Writes a value under a key. */
QUOR_API int32_t quor_inifile_WriteString(quor_object inifile, quor_text Key, quor_text Value);
/* Opens a bracket: what is written in it becomes durable with the outermost Release. */
QUOR_API int32_t quor_inifile_Hold(quor_object inifile);
/* Closes a bracket that Hold has opened. */
QUOR_API int32_t quor_inifile_Release(quor_object inifile);
/* Closes a bracket instead of Release: nothing written since the outermost Hold is saved. */
QUOR_API int32_t quor_inifile_Abandon(quor_object inifile);

/* Registry. A registry: the built-in one, in a file of the application, or one of a host (quor_registry_from_host).
 * Without a folder the built-in one is in the user's configuration folder. */

/* Creates an object of the class Registry; the caller owns the reference in `result`. */
QUOR_API int32_t quor_registry_create(quor_text application, quor_text folder, quor_object* result);
/* True if the value was found; Value is then its text. */
QUOR_API int32_t quor_registry_ReadValue(quor_object registry, quor_text Section, quor_text Name, quor_text Value,
                                         quor_text* Value_out, quor_bool* result);
/* Stores a value for later runs. */
QUOR_API int32_t quor_registry_WriteValue(quor_object registry, quor_text Section, quor_text Name, quor_text Value);

/* ListControl. A list of a host (quor_list_control_from_host). */

/* Removes all items. */
QUOR_API int32_t quor_list_control_Clear(quor_object list_control);
/* Adds an item at the end. */
QUOR_API int32_t quor_list_control_AddItem(quor_object list_control, quor_text Item);
/* The index, from 0, of the item that was added last. */
QUOR_API int32_t quor_list_control_get_NewIndex(quor_object list_control, int32_t* result);
/* The number of an item. */
QUOR_API int32_t quor_list_control_put_ItemData(quor_object list_control, int32_t Index, int32_t value);

/* Dialog. A running dialog, for the host that shows it: what it contains, and what the user does. The host calls
 * Activate once its window is shown, and after that one member for each action of the user. Typing into a box is
 * Focus, KeyPress for each key, and EditText with the new text; EditText alone sets a whole text. The buttons OK,
 * Cancel and Help are cmdOKCancelHelp(0), (1) and (2); coefficients are txtCoefficients(0), (1) and so on; Controls
 * and Name give the others. */

/* The name in the code: "frmCVDSettings", "txtCoefficients(2)". */
QUOR_API int32_t quor_dialog_get_Name(quor_object dialog, quor_text* result);
/* The title of the window. */
QUOR_API int32_t quor_dialog_get_Title(quor_object dialog, quor_text* result);
/* The context number of the dialog's help topic. */
QUOR_API int32_t quor_dialog_get_HelpContext(quor_object dialog, int32_t* result);
/* How many controls there are. */
QUOR_API int32_t quor_dialog_get_ControlCount(quor_object dialog, int32_t* result);
/* A control, in tab order, from 0. The frames and labels are among them. */
QUOR_API int32_t quor_dialog_get_Controls(quor_object dialog, int32_t Index, quor_object* result);
/* The control with that name; none if there is none. */
QUOR_API int32_t quor_dialog_FindControl(quor_object dialog, quor_text Name, quor_object* result);
/* How many frames and button groups there are side by side. */
QUOR_API int32_t quor_dialog_get_ColumnCount(quor_object dialog, int32_t* result);
/* A frame or button group, from left to right, from 0. */
QUOR_API int32_t quor_dialog_get_Columns(quor_object dialog, int32_t Index, quor_object* result);
/* The button that the Escape key presses; none if there is none. */
QUOR_API int32_t quor_dialog_get_CancelButton(quor_object dialog, quor_object* result);
/* The handle of the window while it is shown; 0 otherwise. The host that shows the window sets it. */
QUOR_API int32_t quor_dialog_get_WindowHandle(quor_object dialog, int32_t* result);
QUOR_API int32_t quor_dialog_put_WindowHandle(quor_object dialog, int32_t value);
/* Whether the position of the window is known. */
QUOR_API int32_t quor_dialog_get_HasPlace(quor_object dialog, quor_bool* result);
/* The position of the window, in units of the host; 0 if it is not known. */
QUOR_API int32_t quor_dialog_get_Left(quor_object dialog, int32_t* result);
/* The position of the window, in units of the host; 0 if it is not known. */
QUOR_API int32_t quor_dialog_get_Top(quor_object dialog, int32_t* result);
/* Sets the position of the window. */
QUOR_API int32_t quor_dialog_SetPlace(quor_object dialog, int32_t Left, int32_t Top);
/* False once the dialog was closed: run_dialog must return. */
QUOR_API int32_t quor_dialog_get_IsOpen(quor_object dialog, quor_bool* result);
/* The control that has the focus; none before the first one has received it. */
QUOR_API int32_t quor_dialog_get_ActiveControl(quor_object dialog, quor_object* result);
/* The window has become the active one. Call it once the window is shown. */
QUOR_API int32_t quor_dialog_Activate(quor_object dialog);
/* A push button was pressed. */
QUOR_API int32_t quor_dialog_Click(quor_object dialog, quor_object Button);
/* An item of a list was chosen. */
QUOR_API int32_t quor_dialog_Choose(quor_object dialog, quor_object List, int32_t Index);
/* A tab was chosen. */
QUOR_API int32_t quor_dialog_SelectTab(quor_object dialog, quor_object Tabs, int32_t Index);
/* The user moved the focus to a control. */
QUOR_API int32_t quor_dialog_Focus(quor_object dialog, quor_object Control);
/* The Tab key was pressed, with Shift if Backwards. */
QUOR_API int32_t quor_dialog_PressTab(quor_object dialog, quor_bool Backwards);
/* A key was pressed in the box that has the focus. Returns the key to use instead, or 0 for none. */
QUOR_API int32_t quor_dialog_KeyPress(quor_object dialog, int16_t KeyAscii, int16_t* result);
/* The user has changed the text or the selection of a box; positions in characters (code points). */
QUOR_API int32_t quor_dialog_EditText(quor_object dialog, quor_object Box, quor_text Text, int32_t SelStart,
                                      int32_t SelLength);
/* The Escape key was pressed. */
QUOR_API int32_t quor_dialog_Escape(quor_object dialog);
/* The user closed the window by its frame. */
QUOR_API int32_t quor_dialog_Close(quor_object dialog);
/* Text was pasted into a box or dropped on it. It may also fill the following boxes. */
QUOR_API int32_t quor_dialog_Paste(quor_object dialog, quor_object Box, quor_text Text);
/* The F1 key was pressed. */
QUOR_API int32_t quor_dialog_Help(quor_object dialog);
/* The button that the F1 key presses; none if there is none. */
QUOR_API int32_t quor_dialog_get_HelpButton(quor_object dialog, quor_object* result);
/* The box whose advice should be shown; none if there is no advice. */
QUOR_API int32_t quor_dialog_get_AdvisedBox(quor_object dialog, quor_object* result);

/* Control. A control of a running dialog. A member that its kind does not have is error 438. */

/* The name in the code: "frmCVDSettings", "txtCoefficients(2)". */
QUOR_API int32_t quor_control_get_Name(quor_object control, quor_text* result);
/* The kind of the control. */
QUOR_API int32_t quor_control_get_Kind(quor_object control, quor_EControlKind* result);
/* The text on the control. "&" precedes the access key: "&OK". */
QUOR_API int32_t quor_control_get_Caption(quor_object control, quor_text* result);
/* Whether the control is enabled. */
QUOR_API int32_t quor_control_get_Enabled(quor_object control, quor_bool* result);
/* Whether the control is visible itself; it may nevertheless be in a hidden frame: IsShown. */
QUOR_API int32_t quor_control_get_Visible(quor_object control, quor_bool* result);
/* Whether the control and the frames around it are visible. */
QUOR_API int32_t quor_control_get_IsShown(quor_object control, quor_bool* result);
/* Whether the user can act on it. */
QUOR_API int32_t quor_control_get_IsUsable(quor_object control, quor_bool* result);
/* The frame around it; none if it is directly in the dialog. */
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
/* The number of an item. */
QUOR_API int32_t quor_control_get_ItemData(quor_object control, int32_t Index, int32_t* result);
/* The selected item of a list, from 0; -1 for none. */
QUOR_API int32_t quor_control_get_ListIndex(quor_object control, int32_t* result);
/* How many rows a frame has. */
QUOR_API int32_t quor_control_get_RowCount(quor_object control, int32_t* result);
/* How many cells a row has; rows count from 0. */
QUOR_API int32_t quor_control_get_RowLength(quor_object control, int32_t Row, int32_t* result);
/* The control in a cell of a row, both from 0; none in an empty cell. */
QUOR_API int32_t quor_control_get_RowControls(quor_object control, int32_t Row, int32_t Place, quor_object* result);
/* How many tabs a strip has, including removed ones. */
QUOR_API int32_t quor_control_get_TabCount(quor_object control, int32_t* result);
/* The caption of a tab, from 0. */
QUOR_API int32_t quor_control_get_TabCaption(quor_object control, int32_t Index, quor_text* result);
/* False for a tab that was removed. */
QUOR_API int32_t quor_control_get_TabPresent(quor_object control, int32_t Index, quor_bool* result);
/* The selected tab, from 0. */
QUOR_API int32_t quor_control_get_SelectedTab(quor_object control, int32_t* result);
/* What the user should know about the text of a box before it is stored; usually empty. */
QUOR_API int32_t quor_control_get_Advice(quor_object control, quor_text* result);

/* ProbeFile. The probes of a host's file, or the one of a stand-alone settings file. A file that does not exist is
 * error 53; one that may be new has no probes, and the first write creates it. What is written is durable when the
 * call returns, and every call that writes holds the inter-process lock and works on the current file. All reads
 * see the same text, the one that was loaded first or saved last, until Reload. Between Hold and Release nothing is
 * written: Release does everything together, or, if one call fails, nothing, and raises the error of that call. A
 * Source that such a call reads must exist until then. An error of a probe is 75 or the number of its cause;
 * ErrorCode says which one it is. */

/* Creates an object of the class ProbeFile; the caller owns the reference in `result`. */
QUOR_API int32_t quor_probe_file_create(quor_text path, quor_bool mayBeNew, quor_object* result);
/* The path with which the object was created. */
QUOR_API int32_t quor_probe_file_get_Path(quor_object probe_file, quor_text* result);
/* Whether a write would be refused because the user has no permission to write the file or its folder. */
QUOR_API int32_t quor_probe_file_get_IsReadOnly(quor_object probe_file, quor_bool* result);
/* How many probes there are. */
QUOR_API int32_t quor_probe_file_get_ProbeCount(quor_object probe_file, int32_t* result);
/* The section of a probe, in the order of the file, from 0. */
QUOR_API int32_t quor_probe_file_get_ProbeSection(quor_object probe_file, int32_t Index, quor_text* result);
/* The line of the header of a probe's section, from 1. */
QUOR_API int32_t quor_probe_file_get_ProbeLine(quor_object probe_file, int32_t Index, int32_t* result);
/* The conversion type of a probe, CONV_NONE if HasType is False. It may be a code that is not a type. */
QUOR_API int32_t quor_probe_file_get_ProbeType(quor_object probe_file, int32_t Index,
                                               quor_EQuorConversionType* result);
/* Whether the record of a probe has a type that can be read. False for a stand-alone one. */
QUOR_API int32_t quor_probe_file_get_HasType(quor_object probe_file, int32_t Index, quor_bool* result);
/* Whether the section itself has the settings: the probe of a settings file. */
QUOR_API int32_t quor_probe_file_get_IsStandAlone(quor_object probe_file, int32_t Index, quor_bool* result);
/* The name of a probe's conversion; empty where its type cannot be read. */
QUOR_API int32_t quor_probe_file_get_ConversionName(quor_object probe_file, int32_t Index, quor_text* result);
/* The index of the probe in a section, ignoring the case of ASCII letters; -1 if there is none. */
QUOR_API int32_t quor_probe_file_FindProbe(quor_object probe_file, quor_text Section, int32_t* result);
/* Reads a probe into a conversion, which receives its type. False if something was missing, for which it has the
 * defaults: see ProblemCount. */
QUOR_API int32_t quor_probe_file_Read(quor_object probe_file, quor_text Section, quor_object Conversion,
                                      quor_bool* result);
/* The numbers of all probes at once. */
QUOR_API int32_t quor_probe_file_ReadAll(quor_object probe_file, quor_object* result);
/* Finds everything that is wrong with the file and its probes. Returns the number of problems. */
QUOR_API int32_t quor_probe_file_Check(quor_object probe_file, int32_t* result);
/* How many problems the last Read or Check has found. They are kept until the next call that is not a get. The
 * index of a problem counts from 0. */
QUOR_API int32_t quor_probe_file_get_ProblemCount(quor_object probe_file, int32_t* result);
/* What is wrong. */
QUOR_API int32_t quor_probe_file_get_ProblemKind(quor_object probe_file, int32_t Index, quor_EProbeProblem* result);
/* The line of a problem, from 1; 0 for a file beside it. */
QUOR_API int32_t quor_probe_file_get_ProblemLine(quor_object probe_file, int32_t Index, int32_t* result);
/* The section of a problem; empty if it has no name. */
QUOR_API int32_t quor_probe_file_get_ProblemSection(quor_object probe_file, int32_t Index, quor_text* result);
/* The key of a problem; empty if it does not concern a single key. */
QUOR_API int32_t quor_probe_file_get_ProblemKey(quor_object probe_file, int32_t Index, quor_text* result);
/* What is wrong, for people, without the place. */
QUOR_API int32_t quor_probe_file_get_ProblemText(quor_object probe_file, int32_t Index, quor_text* result);
/* How many messages of the library the last Read has collected instead of showing them. Their index counts from 0. */
QUOR_API int32_t quor_probe_file_get_MessageCount(quor_object probe_file, int32_t* result);
/* A message of the last Read, on one line. */
QUOR_API int32_t quor_probe_file_get_Messages(quor_object probe_file, int32_t Index, quor_text* result);
/* Writes a probe into a section, replacing the one there or as a new one: only the lines of values that differ
 * change. */
QUOR_API int32_t quor_probe_file_Write(quor_object probe_file, quor_text Section, quor_object Conversion);
/* Writes the values of a probe that have changed since this object has read them into the conversion, or has
 * written them from it. What other programs have written elsewhere is kept, in later calls too. False if they have
 * changed the same values: there are conflicts, and nothing is written. Error 5 for a conversion that this object
 * has neither read nor written; error 75 (INCOMPLETE) if its settings had refused the record, whose keys are the
 * problems; Write replaces it. */
QUOR_API int32_t quor_probe_file_WriteChanges(quor_object probe_file, quor_text Section, quor_object Conversion,
                                              quor_bool* result);
/* How many values other programs have changed too, as found by the last WriteChanges, RequireUnchanged or Release.
 * The index of a conflict counts from 0. */
QUOR_API int32_t quor_probe_file_get_ConflictCount(quor_object probe_file, int32_t* result);
/* The section of such a value. */
QUOR_API int32_t quor_probe_file_get_ConflictSection(quor_object probe_file, int32_t Index, quor_text* result);
/* The key of such a value; empty if the whole probe is concerned (RequireUnchanged). */
QUOR_API int32_t quor_probe_file_get_ConflictKey(quor_object probe_file, int32_t Index, quor_text* result);
/* The value that was read; empty for none. */
QUOR_API int32_t quor_probe_file_get_ConflictRead(quor_object probe_file, int32_t Index, quor_text* result);
/* The value that the file has now; empty for none. */
QUOR_API int32_t quor_probe_file_get_ConflictTheirs(quor_object probe_file, int32_t Index, quor_text* result);
/* The value that should have been written. */
QUOR_API int32_t quor_probe_file_get_ConflictOurs(quor_object probe_file, int32_t Index, quor_text* result);
/* Renames a probe and its settings sections. */
QUOR_API int32_t quor_probe_file_Rename(quor_object probe_file, quor_text Section, quor_text Name);
/* Removes a probe and its settings sections. Comments that a blank line separates from it stay. */
QUOR_API int32_t quor_probe_file_Remove(quor_object probe_file, quor_text Section);
/* Copies the values of a probe into another section, which is new or has a probe of the same type. */
QUOR_API int32_t quor_probe_file_Copy(quor_object probe_file, quor_text Section, quor_text ToSection);
/* The same from another file, as it was loaded. */
QUOR_API int32_t quor_probe_file_CopyFrom(quor_object probe_file, quor_object Source, quor_text Section,
                                          quor_text ToSection);
/* Opens a bracket: what is written in it becomes durable with the outermost Release. */
QUOR_API int32_t quor_probe_file_Hold(quor_object probe_file);
/* Closes a bracket that Hold has opened. */
QUOR_API int32_t quor_probe_file_Release(quor_object probe_file);
/* Closes a bracket instead of Release: nothing written since the outermost Hold is saved. */
QUOR_API int32_t quor_probe_file_Abandon(quor_object probe_file);
/* Replaces another file with the text of this one as it was last loaded or saved. */
QUOR_API int32_t quor_probe_file_SaveAs(quor_object probe_file, quor_text Path);
/* Whether another program has changed the file since it was loaded or saved, or has removed it. */
QUOR_API int32_t quor_probe_file_get_Changed(quor_object probe_file, quor_bool* result);
/* Loads the current file. */
QUOR_API int32_t quor_probe_file_Reload(quor_object probe_file);
/* The store of the file, for its other sections. */
QUOR_API int32_t quor_probe_file_get_Store(quor_object probe_file, quor_object* result);
/* Why the last call failed; 0 if it did not, or if the error does not concern a probe. */
QUOR_API int32_t quor_probe_file_get_ErrorCode(quor_object probe_file, quor_EProbeFileError* result);
/* What else the error concerns: another probe or section, or a type; usually empty. */
QUOR_API int32_t quor_probe_file_get_ErrorOther(quor_object probe_file, quor_text* result);
/* Whether WriteChanges would write anything; for a conversion that this object has neither read nor written,
 * whether it has another type or other values than the probe, as Read would give it. */
QUOR_API int32_t quor_probe_file_Differs(quor_object probe_file, quor_text Section, quor_object Conversion,
                                         quor_bool* result);
/* Error 75 if the file has the probe with other values, or other lines that nothing reads, than this object has
 * read into the conversion or, if it has not read it from there, than it had when it was loaded, reloaded or last
 * written through this object (not by a call that failed, nor through Store); also if there was no such probe and
 * now is, or the reverse. Between Hold and Release it is Release that looks and raises this, so that a Write or
 * Remove overwrites nothing that another program has saved meanwhile. ConflictSection is then the probe. */
QUOR_API int32_t quor_probe_file_RequireUnchanged(quor_object probe_file, quor_text Section, quor_object Conversion);

/* ProbeTable. The numbers of all probes of a file in one array each, for hosts in languages with slow calls, as
 * they were when ReadAll made it. The values of probe i begin where those of probe i - 1 end. */

/* How many probes there are. */
QUOR_API int32_t quor_probe_table_get_ProbeCount(quor_object probe_table, int32_t* result);
/* The sections of the probes, each followed by a line feed (10). */
QUOR_API int32_t quor_probe_table_get_Sections(quor_object probe_table, quor_text* result);
/* The conversion type of each probe; CONV_NONE if it cannot be read. */
QUOR_API int32_t quor_probe_table_get_Types(quor_object probe_table, quor_int32s* result);
/* How many problems and messages there are with each probe; -1 for one that cannot be read. */
QUOR_API int32_t quor_probe_table_get_ProblemCounts(quor_object probe_table, quor_int32s* result);
/* The different lists of keys, with tabs between the keys, each list followed by a line feed (10). */
QUOR_API int32_t quor_probe_table_get_KeyLists(quor_object probe_table, quor_text* result);
/* Which list, from 0, names the values of each probe. */
QUOR_API int32_t quor_probe_table_get_KeyListOf(quor_object probe_table, quor_int32s* result);
/* The index after the last value of each probe, where those of the next one begin. */
QUOR_API int32_t quor_probe_table_get_ValueEnds(quor_object probe_table, quor_int32s* result);
/* The values of all probes; NaN where a value is missing or cannot be read, everywhere in a record that is refused
 * as a whole. Booleans are 1 and 0; texts, such as units, are not included. */
QUOR_API int32_t quor_probe_table_get_Values(quor_object probe_table, quor_doubles* result);

#ifdef __cplusplus
}
#endif
/* NOLINTEND */

#endif /* QUOR_H */

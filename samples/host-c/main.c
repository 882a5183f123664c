/* A host in C: reads a probe from a host's file, changes its R0, has it edited in its dialog, saves it, and handles an
 * error.
 * Usage: host FILE PROBE. The probe is a Callendar-Van Dusen one; it has R0 = 100.0123 ohms afterwards. */
#include <quor.h>

#include <stdio.h>
#include <stdlib.h>

/* Every function returns 0 or the number of an error, which quor_last_error describes. */
static void must(int32_t code) {
    quor_error error;
    if (code == 0)
        return;
    quor_last_error(&error);
    fprintf(stderr, "error %d: %s (%s)\n", (int)error.number, error.description.bytes, error.source.bytes);
    exit(1);
}

/* Shows a message to the user. */
static int32_t show_message(void* user, const quor_message* message) {
    (void)user;
    printf("%s: %s\n", message->title.bytes, message->text.bytes);
    return 0;
}

static void click(quor_object dialog, const char* name) {
    quor_object button;
    must(quor_dialog_FindControl(dialog, quor_text_of(name), &button));
    must(quor_dialog_Click(dialog, button));
    must(quor_release(button));
}

/* Moves to a box and replaces its text. Keys that are not part of a number are dropped. */
static void type(quor_object dialog, const char* name, const char* keys) {
    char text[32] = "";
    int32_t length = 0;
    quor_object box;
    must(quor_dialog_FindControl(dialog, quor_text_of(name), &box));
    must(quor_dialog_Focus(dialog, box));
    for (; *keys != '\0' && length < 31; ++keys) {
        int16_t key;
        must(quor_dialog_KeyPress(dialog, (int16_t)*keys, &key));
        if (key != 0)
            text[length++] = (char)key;
        text[length] = '\0';
        must(quor_dialog_EditText(dialog, box, quor_text_of(text), length, 0));
    }
    must(quor_release(box));
}

/* A simulated user. A host with a screen draws the dialog here and reports what its user does. */
static int32_t run_dialog(void* user, quor_object dialog) {
    quor_text title;
    (void)user;
    must(quor_dialog_Activate(dialog));
    must(quor_dialog_get_Title(dialog, &title));
    printf("dialog %s\n", title.bytes);
    quor_text_free(&title);
    type(dialog, "txtCoefficients(0)", "100.0123");
    click(dialog, "cmdOKCancelHelp(0)");
    return 0;
}

int main(int argc, char** argv) {
    const quor_platform_functions functions = {
        .size = sizeof functions, .run_dialog = run_dialog, .show_message = show_message};
    quor_object platform, file, probe, settings;
    quor_text section;
    const char* class_name;
    quor_bool complete, accepted, saved;
    double r0;

    if (argc != 3) {
        fprintf(stderr, "usage: host FILE PROBE\n");
        return 2;
    }
    section = quor_text_of(argv[2]);
    must(quor_platform_from_host(&functions, NULL, &platform));
    must(quor_probe_file_create(quor_text_of(argv[1]), 0, &file));
    must(quor_conversion_create(platform, &probe));
    must(quor_probe_file_Read(file, section, probe, &complete));
    if (!complete) {
        fprintf(stderr, "the probe is incomplete: see quor_probe_file_get_ProblemText\n");
        return 1;
    }

    must(quor_conversion_get_Settings(probe, &settings));
    must(quor_class_of(settings, &class_name));
    must(quor_cvd_get_Coefficients(settings, QUOR_CVD_R0, &r0));
    printf("%s, R0 = %.17g ohms\n", class_name, r0);

    must(quor_cvd_put_Coefficients(settings, QUOR_CVD_R0, r0 + 0.001));
    must(quor_conversion_Edit(probe, &accepted));
    if (!accepted)
        return 1;

    /* There is no fifth coefficient. */
    if (quor_cvd_get_Coefficients(settings, QUOR_CVD_BETA + 1, &r0) == QUOR_ERROR_INDEX) {
        quor_error error;
        must(quor_last_error(&error));
        printf("0x%08X %s: %s\n", (unsigned)error.number, error.source.bytes, error.description.bytes);
    }

    /* Values of the probe that another program has written in the meantime are kept. */
    must(quor_probe_file_WriteChanges(file, section, probe, &saved));
    if (!saved) {
        fprintf(stderr, "another program has changed the same value: see quor_probe_file_get_ConflictTheirs\n");
        return 1;
    }
    must(quor_cvd_get_Coefficients(settings, QUOR_CVD_R0, &r0));
    printf("saved, R0 = %.17g ohms\n", r0);

    must(quor_release(settings));
    must(quor_release(probe));
    must(quor_release(file));
    must(quor_release(platform));
    return 0;
}

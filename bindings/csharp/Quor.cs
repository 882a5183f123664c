// The component interface in C#: each class of quor.h as a class, each error as a QuorError. One file, to be compiled
// with a host of any .NET; it loads quor.dll (libquor.so). Made by component/generate from members.txt and Quor.cs.in: change those.
//
// An object is used by one thread at a time, and so are those that it gives out. Dispose, or "using", gives its
// reference back; nothing else does, because a finalizer would run in a thread of its own.
//
// A host in C# can show dialogs and messages (HostPlatform). Its own INI files, registries and list controls, file dialogs
// and help take a host in C, C++ or Python.
using System;
using System.Collections.Generic;
using System.Runtime.ExceptionServices;
using System.Runtime.InteropServices;
using System.Text;

namespace QuorConversions {
    /// <summary>An error of the library, with its number and the object that raised it (Source).</summary>
    public sealed class QuorError : Exception {
        /// <summary>By which programs distinguish errors: 53 file not found, 0x800401F5 index out of range, ...</summary>
        public readonly int Number;
        /// <summary>The file with the topic that explains the error; may be empty.</summary>
        public readonly string HelpFile;
        /// <summary>The topic in the help file; 0 if there is none.</summary>
        public readonly int HelpContext;

        /// <summary>An error that a platform raises under a number of its own, not 0.</summary>
        public QuorError(int number, string source, string description, string helpFile = "", int helpContext = 0)
            : base(description) {
            Number = number;
            Source = source;
            HelpFile = helpFile;
            HelpContext = helpContext;
        }

        /// An exception of a host's function, until the call that it came through has returned: not every call fails for
        /// it. Edit is merely cancelled.
        [ThreadStatic] internal static Exception Pending;

        /// Raises the error of a call that has failed.
        internal static void Raise(int code) {
            if (Pending != null) {
                var pending = ExceptionDispatchInfo.Capture(Pending);
                Pending = null;
                pending.Throw();
            }
            if (code == 0)
                return;
            Native.ErrorView error;
            Native.quor_last_error(out error);
            throw new QuorError(error.Number, error.Source.ToString(), error.Description.ToString(),
                                error.HelpFile.ToString(), error.HelpContext);
        }
    }

    /// <summary>An object of the library. It owns one reference, which Dispose gives back.</summary>
    public abstract class QuorObject : IDisposable {
        ulong m_handle;

        internal QuorObject(ulong handle) { m_handle = handle; }

        /// <summary>The handle, for calls of quor.h that this file does not have.</summary>
        public ulong NativeHandle {
            get {
                if (m_handle == 0)
                    throw new ObjectDisposedException(GetType().Name);
                return m_handle;
            }
        }

        /// <summary>Gives the reference back. Does nothing the second time.</summary>
        public void Dispose() {
            var handle = m_handle;
            m_handle = 0;
            if (handle != 0)
                QuorError.Raise(Native.quor_release(handle));
        }

        internal static ulong HandleOf(QuorObject it) { return it == null ? 0 : it.NativeHandle; } // 0 is none

        internal static short Flag(bool value) { return (short)(value ? -1 : 0); }

        /// An in/out reference: the library releases what it replaces. Between Lend and GiveBack nothing may raise.
        internal static ulong Lend(ulong handle) {
            if (handle != 0)
                QuorError.Raise(Native.quor_add_ref(handle));
            return handle;
        }

        internal static QuorObject GiveBack(QuorObject lent, ulong handle) {
            if (lent == null || lent.m_handle != handle)
                return Of(handle);
            QuorError.Raise(Native.quor_release(handle));
            return lent;
        }

        /// The object of a handle whose reference it takes over; null for 0.
        internal static QuorObject Of(ulong handle) {
            if (handle == 0)
                return null;
            IntPtr name;
            QuorError.Raise(Native.quor_class_of(handle, out name));
            return s_classes[Marshal.PtrToStringAnsi(name)](handle);
        }

        static readonly Dictionary<string, Func<ulong, QuorObject>> s_classes = new Dictionary<string, Func<ulong, QuorObject>> {
            {"CQuorConversion", handle => new CQuorConversion(handle)},
            {"CQuorITS90", handle => new CQuorITS90(handle)},
            {"CQuorITS90LowRange", handle => new CQuorITS90LowRange(handle)},
            {"CQuorITS90HighRange", handle => new CQuorITS90HighRange(handle)},
            {"CQuorIPTS68", handle => new CQuorIPTS68(handle)},
            {"CQuorCVD", handle => new CQuorCVD(handle)},
            {"CQuorPT100", handle => new CQuorPT100(handle)},
            {"CQuorHTPRT", handle => new CQuorHTPRT(handle)},
            {"CQuorWT90", handle => new CQuorWT90(handle)},
            {"CQuorThermistor", handle => new CQuorThermistor(handle)},
            {"CQuorPolynomial", handle => new CQuorPolynomial(handle)},
            {"CQuorTCPolynomial", handle => new CQuorTCPolynomial(handle)},
            {"CQuorTCTable", handle => new CQuorTCTable(handle)},
            {"CQuorTCTypeX", handle => new CQuorTCTypeX(handle)},
            {"CQuorTCTypePoly", handle => new CQuorTCTypePoly(handle)},
            {"INIFile", handle => new INIFile(handle)},
            {"Registry", handle => new Registry(handle)},
            {"ListControl", handle => new ListControl(handle)},
            {"Platform", handle => new Platform(handle)},
            {"Dialog", handle => new Dialog(handle)},
            {"Control", handle => new Control(handle)},
            {"ProbeFile", handle => new ProbeFile(handle)},
            {"ProbeTable", handle => new ProbeTable(handle)},
        };
    }

    /// <summary>A message that the library shows.</summary>
    public sealed class Message {
        /// <summary>Its lines are separated by a carriage return (13).</summary>
        public string Text;
        /// <summary>The title of the window.</summary>
        public string Title;
        /// <summary>What the button Help opens; may be empty, and the message then has no such button.</summary>
        public string HelpFile;
        /// <summary>The topic in the help file.</summary>
        public int HelpContext;
        /// <summary>Which icon the message has.</summary>
        public EMessageIcon Icon;
    }

    /// <summary>The platform of a host: it shows dialogs and messages; the rest behaves as without a screen. An exception of
    /// these methods comes back, as itself, from the call of the library.</summary>
    public abstract class HostPlatform : IDisposable {
        readonly Native.PlatformFunctions m_functions; // the delegates, which live as long as this object
        readonly Platform m_platform;

        protected HostPlatform() {
            m_functions = new Native.PlatformFunctions {
                Size = (UIntPtr)Marshal.SizeOf(typeof(Native.PlatformFunctions)),
                Destroyed = s_destroyed,
                RunDialog = (user, shown) => Guarded(() => {
                    QuorError.Raise(Native.quor_add_ref(shown));
                    using (var dialog = (Dialog)QuorObject.Of(shown))
                        RunDialog(dialog);
                }),
                ShowMessage = (IntPtr user, ref Native.MessageView message) => {
                    var view = new Message {
                        Text = message.Text.ToString(), Title = message.Title.ToString(),
                        HelpFile = message.HelpFile.ToString(), HelpContext = message.HelpContext,
                        Icon = (EMessageIcon)message.Icon};
                    return Guarded(() => ShowMessage(view));
                }};
            var self = GCHandle.Alloc(this); // until the library needs it no longer
            ulong handle;
            var code = Native.quor_platform_from_host(ref m_functions, GCHandle.ToIntPtr(self), out handle);
            if (code != 0)
                self.Free();
            QuorError.Raise(code);
            m_platform = (Platform)QuorObject.Of(handle);
        }

        static readonly Native.Destroyed s_destroyed = user => GCHandle.FromIntPtr(user).Free();

        /// <summary>What conversions are created with.</summary>
        public static implicit operator Platform(HostPlatform platform) {
            return platform == null ? null : platform.m_platform;
        }

        /// <summary>Shows the dialog, reports to it what the user does, and returns when it is closed.</summary>
        protected abstract void RunDialog(Dialog dialog);
        /// <summary>Shows the message and waits until it is closed.</summary>
        protected abstract void ShowMessage(Message message);

        /// <summary>Conversions that were created with it keep it.</summary>
        public void Dispose() { m_platform.Dispose(); }

        /// No exception may run through the library: it becomes an error, and is kept for the call that it comes from.
        static int Guarded(Action action) {
            var first = QuorError.Pending; // of another function in the same call
            QuorError.Pending = null;
            try {
                action();
                return 0;
            } catch (Exception error) {
                first = first ?? error;
                return Described(error);
            } finally {
                QuorError.Pending = first;
            }
        }

        /// Tells the library the words of the error. Its number is returned whatever they are.
        static int Described(Exception exception) {
            const int Unexpected = unchecked((int)0x80004005);
            var error = exception as QuorError;
            var number = error != null && error.Number != 0 ? error.Number : Unexpected;
            try {
                using (var source = TextIn.Replaced(error != null ? error.Source : exception.GetType().Name))
                using (var description = TextIn.Replaced(exception.Message))
                using (var helpFile = TextIn.Replaced(error != null ? error.HelpFile : ""))
                    Native.quor_set_error(number, source.Value, description.Value, helpFile.Value,
                                          error != null ? error.HelpContext : 0);
            } catch (Exception) { // Message may be the host's own
            }
            return number;
        }
    }

    /// A text as the library has it: UTF-8 with its size.
    [StructLayout(LayoutKind.Sequential)]
    struct Text {
        public IntPtr Bytes;
        public UIntPtr Size;

        public override string ToString() {
            var bytes = new byte[(int)Size];
            if (bytes.Length > 0)
                Marshal.Copy(Bytes, bytes, 0, bytes.Length);
            return Encoding.UTF8.GetString(bytes);
        }

        /// The text, which is freed.
        public string Take() {
            var text = ToString();
            Native.quor_text_free(ref this);
            return text;
        }
    }

    /// Numbers of an object, which are copied while it exists.
    [StructLayout(LayoutKind.Sequential)]
    struct Array {
        public IntPtr Values;
        public UIntPtr Size;

        public double[] Doubles() {
            var values = new double[(int)Size];
            if (values.Length > 0)
                Marshal.Copy(Values, values, 0, values.Length);
            return values;
        }

        public int[] Int32s() {
            var values = new int[(int)Size];
            if (values.Length > 0)
                Marshal.Copy(Values, values, 0, values.Length);
            return values;
        }
    }

    /// A text that is passed to the library, freed by Dispose. A half of a surrogate pair is an error: it would be
    /// another text in UTF-8.
    sealed class TextIn : IDisposable {
        static readonly Encoding s_utf8 = new UTF8Encoding(false, true);
        public readonly Text Value;

        public TextIn(string text) : this(text, s_utf8) {}

        /// For people: half a pair becomes U+FFFD, and null an empty text.
        public static TextIn Replaced(string text) { return new TextIn(text ?? "", Encoding.UTF8); }

        TextIn(string text, Encoding encoding) {
            if (text == null)
                throw new ArgumentNullException("text");
            var bytes = encoding.GetBytes(text);
            Value.Bytes = Marshal.AllocHGlobal(bytes.Length + 1);
            Value.Size = (UIntPtr)bytes.Length;
            Marshal.Copy(bytes, 0, Value.Bytes, bytes.Length);
        }

        public void Dispose() { Marshal.FreeHGlobal(Value.Bytes); }
    }

    /// <summary>The conversion types. The values are stored in files.</summary>
    public enum EQuorConversionType {
        /// <summary>settings: none, as those below that name no class</summary>
        CONV_NONE = -1,
        /// <summary>settings: CQuorITS90</summary>
        CONV_ITS90 = 0,
        /// <summary>settings: CQuorIPTS68</summary>
        CONV_IPTS68 = 1,
        /// <summary>settings: CQuorCVD</summary>
        CONV_CVD = 2,
        /// <summary>settings: CQuorHTPRT</summary>
        CONV_HTPRT = 3,
        /// <summary>settings: CQuorPolynomial</summary>
        CONV_POLYNOMIAL = 4,
        /// <summary>settings: CQuorThermistor, T(R)</summary>
        CONV_THERMISTORT_R = 5,
        /// <summary>settings: CQuorThermistor, R(T)</summary>
        CONV_THERMISTORR_T = 6,
        /// <summary>settings: CQuorTCPolynomial</summary>
        CONV_TCPOLYNOMIAL = 7,
        /// <summary>settings: CQuorTCTable</summary>
        CONV_TCTABLE = 8,
        /// <summary>settings: CQuorTCTypeX, of type K at first</summary>
        CONV_TCTYPEX = 9,
        CONV_OHMS = 10,
        CONV_VOLTS = 11,
        CONV_IEC751 = 12,
        CONV_YSI400 = 13,
        /// <summary>settings: CQuorWT90</summary>
        CONV_WT90 = 14,
        CONV_RATIO = 15,
        /// <summary>settings: none; CONV_PT100R0 has some</summary>
        CONV_PT100 = 16,
        /// <summary>settings: CQuorITS90, in range 5</summary>
        CONV_ITSSR5 = 17,
        CONV_THERMISTOR_OHMS = 18,
        /// <summary>settings: CQuorPT100</summary>
        CONV_PT100R0 = 19,
        /// <summary>settings: CQuorTCTypePoly, of type E at first</summary>
        CONV_TCTYPEPOLY = 20,
    }

    /// <summary>The sub-ranges of the ITS-90 for platinum resistance thermometers.</summary>
    public enum EITS90RangeNumber {
        ITS90_NORANGE = -1,
        /// <summary>13 K to 273 K</summary>
        ITS90_RANGE_1 = 1,
        /// <summary>24 K to 273 K</summary>
        ITS90_RANGE_2 = 2,
        /// <summary>54 K to 273 K</summary>
        ITS90_RANGE_3 = 3,
        /// <summary>83 K to 273 K</summary>
        ITS90_RANGE_4 = 4,
        /// <summary>234 K to 302 K, the one that both sides carry</summary>
        ITS90_RANGE_5 = 5,
        /// <summary>273 K to 1234 K</summary>
        ITS90_RANGE_6 = 6,
        /// <summary>273 K to 933 K</summary>
        ITS90_RANGE_7 = 7,
        /// <summary>273 K to 692 K</summary>
        ITS90_RANGE_8 = 8,
        /// <summary>273 K to 505 K</summary>
        ITS90_RANGE_9 = 9,
        /// <summary>273 K to 429 K</summary>
        ITS90_RANGE_10 = 10,
        /// <summary>273 K to 302 K</summary>
        ITS90_RANGE_11 = 11,
    }

    /// <summary>Which of the two ranges of CQuorITS90 is meant.</summary>
    public enum EITS90RangeHL {
        IR_NONE = -1,
        IR_LOWRANGE = 0,
        IR_HIGHRANGE = 1,
    }

    /// <summary>Indices of the coefficients of CQuorITS90LowRange, all dimensionless.</summary>
    public enum EITS90LowRangeCoefficients {
        ITS90_LOW_A = 0,
        ITS90_LOW_B = 1,
        ITS90_LOW_C1 = 2,
        ITS90_LOW_C2 = 3,
        ITS90_LOW_C3 = 4,
        ITS90_LOW_C4 = 5,
        ITS90_LOW_C5 = 6,
    }

    /// <summary>Indices of the coefficients of CQuorITS90HighRange, all dimensionless.</summary>
    public enum EITS90HighRangeCoefficients {
        ITS90_HIGH_A = 0,
        ITS90_HIGH_B = 1,
        ITS90_HIGH_C = 2,
        ITS90_HIGH_D = 3,
    }

    /// <summary>Indices of the coefficients of CQuorIPTS68.</summary>
    public enum EIPTS68Coefficients {
        /// <summary>resistance at 0 degrees Celsius, ohms</summary>
        IPTS68_R0 = 0,
        /// <summary>1/degree Celsius</summary>
        IPTS68_ALPHA = 1,
        /// <summary>degrees Celsius</summary>
        IPTS68_DELTA = 2,
        /// <summary>deviation coefficient below 0 degrees Celsius</summary>
        IPTS68_A4 = 3,
        /// <summary>deviation coefficient below 0 degrees Celsius</summary>
        IPTS68_C4 = 4,
    }

    /// <summary>The temperature scale on which the instrument reports.</summary>
    public enum EIPTS68Scale {
        SCALE_ITS90 = 0,
        SCALE_IPTS68 = 1,
    }

    /// <summary>Indices of the coefficients of CQuorCVD.</summary>
    public enum ECVDCoefficients {
        /// <summary>resistance at 0 degrees Celsius, ohms</summary>
        CVD_R0 = 0,
        /// <summary>1/degree Celsius; A, of the same unit, in the polynomial form</summary>
        CVD_ALPHA = 1,
        /// <summary>degrees Celsius; B, in 1/degree Celsius^2, in the polynomial form</summary>
        CVD_DELTA = 2,
        /// <summary>degrees Celsius; C, in 1/degree Celsius^4, in the polynomial form</summary>
        CVD_BETA = 3,
    }

    /// <summary>Index of the coefficient of CQuorPT100.</summary>
    public enum EPT100Coefficients {
        /// <summary>resistance at 0 degrees Celsius, ohms</summary>
        PT100_R0 = 0,
    }

    /// <summary>Indices of the coefficients of CQuorHTPRT.</summary>
    public enum EHTPRTCoefficients {
        /// <summary>resistance at the triple point of water, ohms</summary>
        HTPRT_RTPW = 0,
        /// <summary>dimensionless</summary>
        HTPRT_A = 1,
        /// <summary>dimensionless</summary>
        HTPRT_B = 2,
    }

    /// <summary>The direction of a thermistor polynomial.</summary>
    public enum EThermistorConvType {
        /// <summary>temperature from resistance, T(R)</summary>
        TCT_THRMT_R = 0,
        /// <summary>resistance from temperature, R(T)</summary>
        TCT_THRMR_T = 1,
    }

    /// <summary>Indices of the coefficients of CQuorThermistor; A0 to A3 and B0 to B3 are the same four.</summary>
    public enum EThermistorCoefficients {
        /// <summary>A0 to A3 are the names used with T(R)</summary>
        THRM_A0 = 0,
        THRM_A1 = 1,
        THRM_A2 = 2,
        THRM_A3 = 3,
        /// <summary>B0 to B3 are the names used with R(T)</summary>
        THRM_B0 = 0,
        THRM_B1 = 1,
        THRM_B2 = 2,
        THRM_B3 = 3,
    }

    /// <summary>Indices of the coefficients of CQuorPolynomial, one for each power.</summary>
    public enum EPolynomialCoefficients {
        POLY_A0 = 0,
        POLY_A1 = 1,
        POLY_A2 = 2,
        POLY_A3 = 3,
        POLY_A4 = 4,
        POLY_A5 = 5,
        POLY_A6 = 6,
        POLY_A7 = 7,
        POLY_A8 = 8,
        POLY_A9 = 9,
        POLY_A10 = 10,
    }

    /// <summary>Indices of the coefficients of CQuorTCPolynomial, of which CQuorTCTypePoly has the first four: C[i] is in millivolts per degree Celsius to the i-th power.</summary>
    public enum ETCPolynomialCoefficients {
        TC_POLY_C0 = 0,
        TC_POLY_C1 = 1,
        TC_POLY_C2 = 2,
        TC_POLY_C3 = 3,
        TC_POLY_C4 = 4,
        TC_POLY_C5 = 5,
        TC_POLY_C6 = 6,
        TC_POLY_C7 = 7,
        TC_POLY_C8 = 8,
        TC_POLY_C9 = 9,
        TC_POLY_C10 = 10,
        TC_POLY_C11 = 11,
        TC_POLY_C12 = 12,
        TC_POLY_C13 = 13,
        TC_POLY_C14 = 14,
        TC_POLY_C15 = 15,
    }

    /// <summary>Indices of the points of CQuorTCTable; temperatures and voltages are those of the same ten.</summary>
    public enum ETCTableCoefficients {
        /// <summary>temperatures</summary>
        TCTABLE_T1 = 0,
        TCTABLE_T2 = 1,
        TCTABLE_T3 = 2,
        TCTABLE_T4 = 3,
        TCTABLE_T5 = 4,
        TCTABLE_T6 = 5,
        TCTABLE_T7 = 6,
        TCTABLE_T8 = 7,
        TCTABLE_T9 = 8,
        TCTABLE_T10 = 9,
        /// <summary>voltages of the same points</summary>
        TCTABLE_ADJ1 = 0,
        TCTABLE_ADJ2 = 1,
        TCTABLE_ADJ3 = 2,
        TCTABLE_ADJ4 = 3,
        TCTABLE_ADJ5 = 4,
        TCTABLE_ADJ6 = 5,
        TCTABLE_ADJ7 = 6,
        TCTABLE_ADJ8 = 7,
        TCTABLE_ADJ9 = 8,
        TCTABLE_ADJ10 = 9,
    }

    /// <summary>Indices of the points of CQuorTCTypeX, whose temperatures and offsets are those of the same three, and of its DC coefficients.</summary>
    public enum ETCTypeXCoefficients {
        /// <summary>temperatures of the deviation points</summary>
        TCTYPEX_T1 = 0,
        TCTYPEX_T2 = 1,
        TCTYPEX_T3 = 2,
        /// <summary>offsets of the same points</summary>
        TCTYPEX_ADJ1 = 0,
        TCTYPEX_ADJ2 = 1,
        TCTYPEX_ADJ3 = 2,
        /// <summary>DC coefficients</summary>
        TCTYPEX_DC1 = 0,
        TCTYPEX_DC2 = 1,
    }

    /// <summary>The standard thermocouple types. The values are stored in files.</summary>
    public enum ETCType {
        TCTYPE_NONE = -1,
        TCTYPE_B = 0,
        TCTYPE_C = 1,
        TCTYPE_E = 2,
        TCTYPE_J = 3,
        TCTYPE_K = 4,
        TCTYPE_L = 5,
        TCTYPE_M = 6,
        TCTYPE_N = 7,
        TCTYPE_R = 8,
        TCTYPE_S = 9,
        TCTYPE_T = 10,
        TCTYPE_U = 11,
        TCTYPE_AUPT = 12,
    }

    /// <summary>Shapes of the mouse pointer that the library sets.</summary>
    public enum EMousePointer {
        POINTER_DEFAULT = 0,
        POINTER_HOURGLASS = 11,
    }

    /// <summary>The icon of a message: a failure, or information.</summary>
    public enum EMessageIcon {
        ICON_CRITICAL = 16,
        ICON_INFORMATION = 64,
    }

    /// <summary>Whether a file dialog chooses a file to read or one to write.</summary>
    public enum EFileDialogKind {
        FILE_DIALOG_OPEN = 0,
        FILE_DIALOG_SAVE = 1,
    }

    /// <summary>What a control is.</summary>
    public enum EControlKind {
        CONTROL_LABEL = 0,
        CONTROL_PUSH_BUTTON = 1,
        CONTROL_TEXT_BOX = 2,
        CONTROL_DROP_DOWN_LIST = 3,
        CONTROL_FRAME = 4,
        CONTROL_TAB_STRIP = 5,
    }

    /// <summary>Why a call of a ProbeFile has failed.</summary>
    public enum EProbeFileError {
        /// <summary>there is no such section</summary>
        PROBE_NO_SUCH_SECTION = 1,
        /// <summary>the section exists, but is not the record of a probe</summary>
        PROBE_NO_RECORD = 2,
        /// <summary>the type cannot be read; ErrorOther is its text</summary>
        PROBE_TYPE_UNREADABLE = 3,
        /// <summary>no conversion has the code of its type; ErrorOther is the code</summary>
        PROBE_UNKNOWN_TYPE = 4,
        /// <summary>something is missing or cannot be read: see ProblemCount</summary>
        PROBE_INCOMPLETE = 5,
        /// <summary>a section cannot have the name</summary>
        PROBE_BAD_NAME = 6,
        /// <summary>another section has the name, or another probe of one Write</summary>
        PROBE_NAME_IS_TAKEN = 7,
        /// <summary>a probe, ErrorOther, keeps its settings in a section of that name</summary>
        PROBE_NAME_OF_SETTINGS = 8,
        /// <summary>its settings need the section ErrorOther, which exists already</summary>
        PROBE_SETTINGS_ARE_TAKEN = 9,
        /// <summary>a section of the probe also belongs to another probe, ErrorOther</summary>
        PROBE_SECTION_IS_SHARED = 10,
        /// <summary>the section has a probe of another type, ErrorOther</summary>
        PROBE_OF_ANOTHER_TYPE = 11,
        /// <summary>the section of a stand-alone settings file is not for the type, or not for a renamed probe</summary>
        PROBE_DOES_NOT_FIT_FILE = 12,
        /// <summary>its conversion has raised an error, which is raised here</summary>
        PROBE_CANNOT_BE_WRITTEN = 13,
        /// <summary>the section exists and is not the record of a probe: none is written into it</summary>
        PROBE_SECTION_OF_HOST = 14,
        /// <summary>what would be read back differs from what the conversion holds: a count below zero, settings of another type</summary>
        PROBE_INCONSISTENT = 15,
    }

    /// <summary>What can be wrong with a probe or its file; from 101 on warnings.</summary>
    public enum EProbeProblem {
        PROBLEM_SECTION_MISSING = 1,
        PROBLEM_KEY_MISSING = 2,
        /// <summary>not a value of the kind that the key needs: a number with a comma, text instead of a code</summary>
        PROBLEM_VALUE_UNREADABLE = 3,
        /// <summary>no conversion type has the code</summary>
        PROBLEM_UNKNOWN_TYPE = 4,
        /// <summary>the settings object refuses the record and gives the reason</summary>
        PROBLEM_RECORD_REFUSED = 5,
        /// <summary>a value, such as a count below zero, with which no record can be read</summary>
        PROBLEM_VALUE_REFUSED = 6,
        /// <summary>the settings object uses another value instead</summary>
        PROBLEM_VALUE_REPLACED = 7,
        /// <summary>a record of this type and size has no such key</summary>
        PROBLEM_UNKNOWN_KEY = 8,
        /// <summary>the first one is read</summary>
        PROBLEM_DUPLICATE_KEY = 9,
        /// <summary>the first one is read</summary>
        PROBLEM_DUPLICATE_SECTION = 10,
        /// <summary>a section header without "]": the record below it cannot be read</summary>
        PROBLEM_UNCLOSED_HEADER = 11,
        /// <summary>no key=value</summary>
        PROBLEM_MALFORMED_LINE = 12,
        /// <summary>next to the file: what another program had put in its place</summary>
        PROBLEM_KEPT_FILE = 13,
        /// <summary>next to the file: left over from an interrupted save</summary>
        PROBLEM_INTERRUPTED_SAVE = 14,
        /// <summary>a header or key after a lone carriage return, which is not read</summary>
        PROBLEM_LINE_ENDS_IN_CR = 15,
        WARNING_R0_NOT_POSITIVE = 101,
        WARNING_RTPW_NOT_POSITIVE = 102,
        /// <summary>NaN or infinity</summary>
        WARNING_NOT_FINITE = 103,
        WARNING_COEFFICIENTS_ALL_ZERO = 104,
        WARNING_TEMPERATURES_NOT_INCREASING = 105,
        /// <summary>coefficients that the ITS-90 range does not have are not 0</summary>
        WARNING_RANGE_DOES_NOT_FIT = 106,
        WARNING_ALPHA_SIZE = 107,
        WARNING_DELTA_SIZE = 108,
        WARNING_BETA_SIZE = 109,
        WARNING_CVD_A_SIZE = 110,
        WARNING_CVD_B_SIZE = 111,
        WARNING_CVD_C_SIZE = 112,
        WARNING_A4_SIZE = 113,
        WARNING_C4_SIZE = 114,
        WARNING_DEVIATION_A_SIZE = 115,
        /// <summary>b, c, d and c1 to c5 of the ITS-90</summary>
        WARNING_DEVIATION_SIZE = 116,
        WARNING_THERMISTOR_A0_SIZE = 117,
        WARNING_THERMISTOR_A1_SIZE = 118,
        WARNING_THERMISTOR_A3_SIZE = 119,
        WARNING_THERMISTOR_B1_SIZE = 120,
        /// <summary>values beside a count that it leaves out are not 0</summary>
        WARNING_COUNT_DOES_NOT_FIT = 121,
        /// <summary>no thermocouple type has the code</summary>
        WARNING_UNKNOWN_CODE = 122,
        /// <summary>settings of a probe that is not there</summary>
        WARNING_NO_SUCH_PROBE = 123,
    }

    /// <summary>CQuorConversion</summary>
    public sealed partial class CQuorConversion : QuorObject {
        internal CQuorConversion(ulong handle) : base(handle) { }
        public CQuorConversion(Platform platform = null) : base(Create(platform)) { }
        static ulong Create(Platform platform) {
            var platformHandle = QuorObject.HandleOf(platform);
            ulong result;
            QuorError.Raise(Native.quor_conversion_create(platformHandle, out result));
            return result;
        }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_conversion_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_conversion_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The help file of the whole library in this process, not of this object.</summary>
        public string HelpFile {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_conversion_get_HelpFile(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_conversion_put_HelpFile(it, valueText.Value));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_conversion_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_conversion_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_conversion_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_conversion_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_conversion_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_conversion_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>The settings object of the current type; none when the type has none.</summary>
        public QuorObject Settings {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_conversion_get_Settings(it, out result));
                return (QuorObject)QuorObject.Of(result);
            }
        }
        /// <summary>CONV_NONE at first. Another value replaces the settings object by a new one.</summary>
        public EQuorConversionType ConversionType {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_conversion_get_ConversionType(it, out result));
                return (EQuorConversionType)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_conversion_put_ConversionType(it, (int)value));
            }
        }
        /// <summary>The name of a conversion type, "&lt;unknown&gt;" for a code without one. -2: of the settings object.</summary>
        public string ConversionName(int value = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_conversion_ConversionName(it, value, out result));
            return result.Take();
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_conversion_Edit(it, out result));
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_conversion_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed. Beware: a section that does not exist, or has no type, makes the conversion an ITS-90 one, and its coefficients are lost. Read of ProbeFile refuses such a section.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_conversion_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorITS90</summary>
    public sealed partial class CQuorITS90 : QuorObject {
        internal CQuorITS90(ulong handle) : base(handle) { }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_its90_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_its90_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_its90_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_its90_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>The sub-range above the triple point of water. It lives as long as its owner.</summary>
        public CQuorITS90HighRange HighRange {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_its90_get_HighRange(it, out result));
                return (CQuorITS90HighRange)QuorObject.Of(result);
            }
        }
        /// <summary>The sub-range below the triple point of water. It lives as long as its owner.</summary>
        public CQuorITS90LowRange LowRange {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_its90_get_LowRange(it, out result));
                return (CQuorITS90LowRange)QuorObject.Of(result);
            }
        }
        /// <summary>Resistance at the triple point of water, ohms.</summary>
        public double RTPW {
            get {
                var it = NativeHandle;
                double result;
                QuorError.Raise(Native.quor_its90_get_RTPW(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_put_RTPW(it, value));
            }
        }
        /// <summary>How the dialog shows RTPW: a value format. Never a change.</summary>
        public string RTPWFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_its90_get_RTPWFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_its90_put_RTPWFormat(it, valueText.Value));
            }
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_its90_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_its90_GetName(it, out result));
            return result.Take();
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_its90_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_its90_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_its90_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_its90_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorITS90LowRange</summary>
    public sealed partial class CQuorITS90LowRange : QuorObject {
        internal CQuorITS90LowRange(ulong handle) : base(handle) { }
        /// <summary>Whether the labels of the dialog include the range number; True at first. Never a change.</summary>
        public bool ShowCoefRange {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_low_range_get_ShowCoefRange(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_low_range_put_ShowCoefRange(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Whether the dialog lets the user choose another range; True at first. Never a change.</summary>
        public bool AllowChangeRange {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_low_range_get_AllowChangeRange(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_low_range_put_AllowChangeRange(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_its90_low_range_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_its90_low_range_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_low_range_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_low_range_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>True at first. False selects the first range that only this side has.</summary>
        public bool RangeEnabled {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_low_range_get_RangeEnabled(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_low_range_put_RangeEnabled(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The name of a range of this side, empty for any other value. -2: of the current one.</summary>
        public string RangeName(int vData = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_its90_low_range_RangeName(it, vData, out result));
            return result.Take();
        }
        /// <summary>How many coefficients there are.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_low_range_get_NumCoefficients(it, out result));
                return result;
            }
        }
        /// <summary>ITS90_NORANGE at first. Error 0x800401F6 outside MinRange to MaxRange; no range is always valid.</summary>
        public EITS90RangeNumber Range {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_its90_low_range_get_Range(it, out result));
                return (EITS90RangeNumber)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_low_range_put_Range(it, (int)value));
            }
        }
        /// <summary>The upper limit of Range; not checked, never a change.</summary>
        public EITS90RangeNumber MaxRange {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_its90_low_range_get_MaxRange(it, out result));
                return (EITS90RangeNumber)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_low_range_put_MaxRange(it, (int)value));
            }
        }
        /// <summary>The lower limit of Range; not checked, never a change.</summary>
        public EITS90RangeNumber MinRange {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_its90_low_range_get_MinRange(it, out result));
                return (EITS90RangeNumber)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_low_range_put_MinRange(it, (int)value));
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(EITS90LowRangeCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_its90_low_range_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(EITS90LowRangeCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_its90_low_range_put_Coefficients(it, (int)index, value));
        }
        /// <summary>How the dialog shows all coefficients. Never a change.</summary>
        public string ValueFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_its90_low_range_get_ValueFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_its90_low_range_put_ValueFormat(it, valueText.Value));
            }
        }
        /// <summary>Fills a list with "&lt;none&gt;" and the ranges, each with its number as item data.</summary>
        public void FillRangeCombo(ListControl ctrl) {
            var it = NativeHandle;
            var ctrlHandle = QuorObject.HandleOf(ctrl);
            QuorError.Raise(Native.quor_its90_low_range_FillRangeCombo(it, ctrlHandle));
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_its90_low_range_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_its90_low_range_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorITS90HighRange</summary>
    public sealed partial class CQuorITS90HighRange : QuorObject {
        internal CQuorITS90HighRange(ulong handle) : base(handle) { }
        /// <summary>Whether the labels of the dialog include the range number; True at first. Never a change.</summary>
        public bool ShowCoefRange {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_high_range_get_ShowCoefRange(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_high_range_put_ShowCoefRange(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Whether the dialog lets the user choose another range; True at first. Never a change.</summary>
        public bool AllowChangeRange {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_high_range_get_AllowChangeRange(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_high_range_put_AllowChangeRange(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_its90_high_range_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_its90_high_range_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_high_range_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_high_range_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>True at first. False selects the first range that only this side has.</summary>
        public bool RangeEnabled {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_high_range_get_RangeEnabled(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_high_range_put_RangeEnabled(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The name of a range of this side, empty for any other value. -2: of the current one.</summary>
        public string RangeName(int vData = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_its90_high_range_RangeName(it, vData, out result));
            return result.Take();
        }
        /// <summary>How many coefficients there are.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_its90_high_range_get_NumCoefficients(it, out result));
                return result;
            }
        }
        /// <summary>ITS90_NORANGE at first. Error 0x800401F6 outside MinRange to MaxRange; no range is always valid.</summary>
        public EITS90RangeNumber Range {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_its90_high_range_get_Range(it, out result));
                return (EITS90RangeNumber)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_high_range_put_Range(it, (int)value));
            }
        }
        /// <summary>The upper limit of Range; not checked, never a change.</summary>
        public EITS90RangeNumber MaxRange {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_its90_high_range_get_MaxRange(it, out result));
                return (EITS90RangeNumber)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_high_range_put_MaxRange(it, (int)value));
            }
        }
        /// <summary>The lower limit of Range; not checked, never a change.</summary>
        public EITS90RangeNumber MinRange {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_its90_high_range_get_MinRange(it, out result));
                return (EITS90RangeNumber)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_its90_high_range_put_MinRange(it, (int)value));
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(EITS90HighRangeCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_its90_high_range_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(EITS90HighRangeCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_its90_high_range_put_Coefficients(it, (int)index, value));
        }
        /// <summary>How the dialog shows all coefficients. Never a change.</summary>
        public string ValueFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_its90_high_range_get_ValueFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_its90_high_range_put_ValueFormat(it, valueText.Value));
            }
        }
        /// <summary>Fills a list with "&lt;none&gt;" and the ranges, each with its number as item data.</summary>
        public void FillRangeCombo(ListControl ctrl) {
            var it = NativeHandle;
            var ctrlHandle = QuorObject.HandleOf(ctrl);
            QuorError.Raise(Native.quor_its90_high_range_FillRangeCombo(it, ctrlHandle));
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_its90_high_range_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_its90_high_range_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorIPTS68</summary>
    public sealed partial class CQuorIPTS68 : QuorObject {
        internal CQuorIPTS68(ulong handle) : base(handle) { }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_ipts68_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_ipts68_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_ipts68_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_ipts68_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_ipts68_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_ipts68_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_ipts68_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_ipts68_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>Whether the dialog offers the choice of the scale; False at first. Never a change.</summary>
        public bool ScaleEnabled {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_ipts68_get_ScaleEnabled(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_ipts68_put_ScaleEnabled(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>How many coefficients there are.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_ipts68_get_NumCoefficients(it, out result));
                return result;
            }
        }
        /// <summary>The temperature scale of the instrument; SCALE_ITS90 at first. Any value is stored.</summary>
        public EIPTS68Scale IPTS68Scale {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_ipts68_get_IPTS68Scale(it, out result));
                return (EIPTS68Scale)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_ipts68_put_IPTS68Scale(it, (int)value));
            }
        }
        /// <summary>The name of a scale, empty for a value without one. -2: of the current one.</summary>
        public string IPTS68ScaleName(int vData = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_ipts68_IPTS68ScaleName(it, vData, out result));
            return result.Take();
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(EIPTS68Coefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_ipts68_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(EIPTS68Coefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_ipts68_put_Coefficients(it, (int)index, value));
        }
        /// <summary>How the dialog shows a coefficient. Never a change.</summary>
        public string GetValueFormat(EIPTS68Coefficients index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_ipts68_get_ValueFormat(it, (int)index, out result));
            return result.Take();
        }
        /// <summary>How the dialog shows a coefficient. Never a change.</summary>
        public void SetValueFormat(EIPTS68Coefficients index, string value) {
            var it = NativeHandle;
            using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_ipts68_put_ValueFormat(it, (int)index, valueText.Value));
        }
        /// <summary>Fills a list with the two scales, each with its value as item data.</summary>
        public void FillScaleCombo(ListControl ctrl) {
            var it = NativeHandle;
            var ctrlHandle = QuorObject.HandleOf(ctrl);
            QuorError.Raise(Native.quor_ipts68_FillScaleCombo(it, ctrlHandle));
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_ipts68_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_ipts68_GetName(it, out result));
            return result.Take();
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_ipts68_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_ipts68_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_ipts68_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_ipts68_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorCVD</summary>
    public sealed partial class CQuorCVD : QuorObject {
        internal CQuorCVD(ulong handle) : base(handle) { }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_cvd_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_cvd_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_cvd_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_cvd_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_cvd_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_cvd_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>4 at first. A negative value refuses every index until a valid one is set.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_cvd_get_NumCoefficients(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_cvd_put_NumCoefficients(it, value));
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(ECVDCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_cvd_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(ECVDCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_cvd_put_Coefficients(it, (int)index, value));
        }
        /// <summary>Whether the coefficients are those of the polynomial form. Never a change.</summary>
        public bool UsePolynomial {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_cvd_get_UsePolynomial(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_cvd_put_UsePolynomial(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>How the dialog shows a coefficient. Never a change.</summary>
        public string GetValueFormat(ECVDCoefficients index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_cvd_get_ValueFormat(it, (int)index, out result));
            return result.Take();
        }
        /// <summary>How the dialog shows a coefficient. Never a change.</summary>
        public void SetValueFormat(ECVDCoefficients index, string value) {
            var it = NativeHandle;
            using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_cvd_put_ValueFormat(it, (int)index, valueText.Value));
        }
        /// <summary>The greatest useful number of coefficients.</summary>
        public short MaxCoefficients() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_cvd_MaxCoefficients(it, out result));
            return result;
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_cvd_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_cvd_GetName(it, out result));
            return result.Take();
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_cvd_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_cvd_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_cvd_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_cvd_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_cvd_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_cvd_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorPT100</summary>
    public sealed partial class CQuorPT100 : QuorObject {
        internal CQuorPT100(ulong handle) : base(handle) { }
        public CQuorPT100(Platform platform = null) : base(Create(platform)) { }
        static ulong Create(Platform platform) {
            var platformHandle = QuorObject.HandleOf(platform);
            ulong result;
            QuorError.Raise(Native.quor_pt100_create(platformHandle, out result));
            return result;
        }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_pt100_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_pt100_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_pt100_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_pt100_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_pt100_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_pt100_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>1 at first. A negative value refuses every index until a valid one is set.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_pt100_get_NumCoefficients(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_pt100_put_NumCoefficients(it, value));
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(EPT100Coefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_pt100_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(EPT100Coefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_pt100_put_Coefficients(it, (int)index, value));
        }
        /// <summary>How the dialog shows a coefficient. Never a change.</summary>
        public string GetValueFormat(EPT100Coefficients index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_pt100_get_ValueFormat(it, (int)index, out result));
            return result.Take();
        }
        /// <summary>How the dialog shows a coefficient. Never a change.</summary>
        public void SetValueFormat(EPT100Coefficients index, string value) {
            var it = NativeHandle;
            using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_pt100_put_ValueFormat(it, (int)index, valueText.Value));
        }
        /// <summary>The greatest useful number of coefficients.</summary>
        public short MaxCoefficients() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_pt100_MaxCoefficients(it, out result));
            return result;
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_pt100_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_pt100_GetName(it, out result));
            return result.Take();
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_pt100_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_pt100_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_pt100_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_pt100_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_pt100_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_pt100_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorHTPRT</summary>
    public sealed partial class CQuorHTPRT : QuorObject {
        internal CQuorHTPRT(ulong handle) : base(handle) { }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_htprt_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_htprt_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_htprt_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_htprt_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_htprt_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_htprt_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_htprt_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_htprt_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>How many coefficients there are.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_htprt_get_NumCoefficients(it, out result));
                return result;
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(EHTPRTCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_htprt_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(EHTPRTCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_htprt_put_Coefficients(it, (int)index, value));
        }
        /// <summary>How the dialog shows a coefficient. Never a change.</summary>
        public string GetValueFormat(EHTPRTCoefficients index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_htprt_get_ValueFormat(it, (int)index, out result));
            return result.Take();
        }
        /// <summary>How the dialog shows a coefficient. Never a change.</summary>
        public void SetValueFormat(EHTPRTCoefficients index, string value) {
            var it = NativeHandle;
            using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_htprt_put_ValueFormat(it, (int)index, valueText.Value));
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_htprt_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_htprt_GetName(it, out result));
            return result.Take();
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_htprt_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_htprt_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_htprt_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_htprt_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorWT90</summary>
    public sealed partial class CQuorWT90 : QuorObject {
        internal CQuorWT90(ulong handle) : base(handle) { }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_wt90_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_wt90_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_wt90_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_wt90_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_wt90_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_wt90_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_wt90_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_wt90_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>Resistance at the triple point of water, ohms.</summary>
        public double RTPW {
            get {
                var it = NativeHandle;
                double result;
                QuorError.Raise(Native.quor_wt90_get_RTPW(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_wt90_put_RTPW(it, value));
            }
        }
        /// <summary>How the dialog shows RTPW: a value format. Never a change.</summary>
        public string RTPWFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_wt90_get_RTPWFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_wt90_put_RTPWFormat(it, valueText.Value));
            }
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_wt90_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_wt90_GetName(it, out result));
            return result.Take();
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_wt90_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_wt90_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_wt90_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_wt90_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorThermistor</summary>
    public sealed partial class CQuorThermistor : QuorObject {
        internal CQuorThermistor(ulong handle) : base(handle) { }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_thermistor_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_thermistor_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_thermistor_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_thermistor_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_thermistor_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_thermistor_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_thermistor_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_thermistor_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>The direction of the polynomial; TCT_THRMT_R at first. Any value is stored.</summary>
        public EThermistorConvType ConvType {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_thermistor_get_ConvType(it, out result));
                return (EThermistorConvType)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_thermistor_put_ConvType(it, (int)value));
            }
        }
        /// <summary>"Thermistor " and a direction. -2: the current one.</summary>
        public string ConvName(int vData = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_thermistor_ConvName(it, vData, out result));
            return result.Take();
        }
        /// <summary>How many coefficients there are.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_thermistor_get_NumCoefficients(it, out result));
                return result;
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(EThermistorCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_thermistor_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(EThermistorCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_thermistor_put_Coefficients(it, (int)index, value));
        }
        /// <summary>How the dialog shows all coefficients. Never a change.</summary>
        public string ValueFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_thermistor_get_ValueFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_thermistor_put_ValueFormat(it, valueText.Value));
            }
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_thermistor_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_thermistor_GetName(it, out result));
            return result.Take();
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_thermistor_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_thermistor_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_thermistor_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_thermistor_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorPolynomial</summary>
    public sealed partial class CQuorPolynomial : QuorObject {
        internal CQuorPolynomial(ulong handle) : base(handle) { }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_polynomial_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_polynomial_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_polynomial_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_polynomial_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_polynomial_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_polynomial_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_polynomial_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_polynomial_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>Order + 1.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_polynomial_get_NumCoefficients(it, out result));
                return result;
            }
        }
        /// <summary>The order of the polynomial, 4 at first. A value outside MinOrder to MaxOrder is ignored.</summary>
        public short Order {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_polynomial_get_Order(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_polynomial_put_Order(it, value));
            }
        }
        /// <summary>The smallest order: 4.</summary>
        public short MinOrder {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_polynomial_get_MinOrder(it, out result));
                return result;
            }
        }
        /// <summary>The greatest order: 10.</summary>
        public short MaxOrder {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_polynomial_get_MaxOrder(it, out result));
                return result;
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(EPolynomialCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_polynomial_put_Coefficients(it, (int)index, value));
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(EPolynomialCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_polynomial_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>How the dialog shows all coefficients. Never a change.</summary>
        public string ValueFormat {
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_polynomial_put_ValueFormat(it, valueText.Value));
            }
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_polynomial_get_ValueFormat(it, out result));
                return result.Take();
            }
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_polynomial_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_polynomial_GetName(it, out result));
            return result.Take();
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_polynomial_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_polynomial_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_polynomial_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_polynomial_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
        /// <summary>The letter in the labels of the dialog: "A" gives "A0", "A1" and so on. Never a change.</summary>
        public string CoefficientLabelPrefix {
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_polynomial_put_CoefficientLabelPrefix(it, valueText.Value));
            }
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_polynomial_get_CoefficientLabelPrefix(it, out result));
                return result.Take();
            }
        }
    }

    /// <summary>CQuorTCPolynomial</summary>
    public sealed partial class CQuorTCPolynomial : QuorObject {
        internal CQuorTCPolynomial(ulong handle) : base(handle) { }
        /// <summary>How the dialog shows mV25C. Never a change.</summary>
        public string mV25CFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_polynomial_get_mV25CFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_polynomial_put_mV25CFormat(it, valueText.Value));
            }
        }
        /// <summary>Voltage at 25 degrees Celsius, millivolts.</summary>
        public double mV25C {
            get {
                var it = NativeHandle;
                double result;
                QuorError.Raise(Native.quor_tc_polynomial_get_mV25C(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_polynomial_put_mV25C(it, value));
            }
        }
        /// <summary>Whether the dialog shows mV25C; False at first. Never a change.</summary>
        public bool ShowmV25C {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_polynomial_get_ShowmV25C(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_polynomial_put_ShowmV25C(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_polynomial_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_polynomial_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_tc_polynomial_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_tc_polynomial_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_polynomial_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_polynomial_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_polynomial_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_polynomial_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>16 at first. A negative value is stored and then error 9.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_polynomial_get_NumCoefficients(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_polynomial_put_NumCoefficients(it, value));
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(ETCPolynomialCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_tc_polynomial_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(ETCPolynomialCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_tc_polynomial_put_Coefficients(it, (int)index, value));
        }
        /// <summary>How the dialog shows all coefficients. Never a change.</summary>
        public string ValueFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_polynomial_get_ValueFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_polynomial_put_ValueFormat(it, valueText.Value));
            }
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_tc_polynomial_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_tc_polynomial_GetName(it, out result));
            return result.Take();
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_tc_polynomial_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_tc_polynomial_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_tc_polynomial_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_tc_polynomial_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorTCTable</summary>
    public sealed partial class CQuorTCTable : QuorObject {
        internal CQuorTCTable(ulong handle) : base(handle) { }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_table_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_table_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_tc_table_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_tc_table_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_table_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_table_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_table_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_table_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>10 at first. A value above 10 is ignored; a negative one is stored and then error 9.</summary>
        public short NumPoints {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_table_get_NumPoints(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_table_put_NumPoints(it, value));
            }
        }
        /// <summary>The temperature of a point, in the unit that TempScale names.</summary>
        public double GetTemperatures(ETCTableCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_tc_table_get_Temperatures(it, (int)index, out result));
            return result;
        }
        /// <summary>The temperature of a point, in the unit that TempScale names.</summary>
        public void SetTemperatures(ETCTableCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_tc_table_put_Temperatures(it, (int)index, value));
        }
        /// <summary>The voltage of a point, in the unit that VoltageScale names. Error 0x800401F5 for an invalid index.</summary>
        public double GetVoltages(ETCTableCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_tc_table_get_Voltages(it, (int)index, out result));
            return result;
        }
        /// <summary>The voltage of a point, in the unit that VoltageScale names. Error 0x800401F5 for an invalid index.</summary>
        public void SetVoltages(ETCTableCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_tc_table_put_Voltages(it, (int)index, value));
        }
        /// <summary>How the dialog shows temperatures. Never a change.</summary>
        public string TempFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_table_get_TempFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_table_put_TempFormat(it, valueText.Value));
            }
        }
        /// <summary>How the dialog shows voltages. Never a change.</summary>
        public string VoltageFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_table_get_VoltageFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_table_put_VoltageFormat(it, valueText.Value));
            }
        }
        /// <summary>The unit text beside temperatures; it converts nothing.</summary>
        public string TempScale {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_table_get_TempScale(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_table_put_TempScale(it, valueText.Value));
            }
        }
        /// <summary>The unit text beside voltages, "mV" at first; it converts nothing.</summary>
        public string VoltageScale {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_table_get_VoltageScale(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_table_put_VoltageScale(it, valueText.Value));
            }
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_tc_table_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The display name.</summary>
        public string GetName() {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_tc_table_GetName(it, out result));
            return result.Take();
        }
        /// <summary>Fills a list with the counts that can be chosen, each with its number as item data.</summary>
        public void FillPointsCombo(ListControl ctrl) {
            var it = NativeHandle;
            var ctrlHandle = QuorObject.HandleOf(ctrl);
            QuorError.Raise(Native.quor_tc_table_FillPointsCombo(it, ctrlHandle));
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_tc_table_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_tc_table_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_tc_table_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_tc_table_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorTCTypeX</summary>
    public sealed partial class CQuorTCTypeX : QuorObject {
        internal CQuorTCTypeX(ulong handle) : base(handle) { }
        /// <summary>Whether the dialog shows the DC coefficients; True at first. Never a change.</summary>
        public bool ShowDCCoefs {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_typex_get_ShowDCCoefs(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typex_put_ShowDCCoefs(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_typex_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typex_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_tc_typex_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_tc_typex_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_typex_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typex_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The unit text beside temperatures; it converts nothing.</summary>
        public string TempScale {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_typex_get_TempScale(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_typex_put_TempScale(it, valueText.Value));
            }
        }
        /// <summary>The unit text beside offsets; it converts nothing.</summary>
        public string OffsetScale {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_typex_get_OffsetScale(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_typex_put_OffsetScale(it, valueText.Value));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_typex_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_typex_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>The standard thermocouple type. Any value is stored.</summary>
        public ETCType TCType {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_tc_typex_get_TCType(it, out result));
                return (ETCType)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typex_put_TCType(it, (int)value));
            }
        }
        /// <summary>The name of a thermocouple type, such as "K". -2: of the current one.</summary>
        public string GetTCTypeName(int tc = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_tc_typex_GetTCTypeName(it, tc, out result));
            return result.Take();
        }
        /// <summary>Fills a list with the types that have names, each with its value as item data.</summary>
        public void FillTCTypeNameCombo(ListControl ctrl) {
            var it = NativeHandle;
            var ctrlHandle = QuorObject.HandleOf(ctrl);
            QuorError.Raise(Native.quor_tc_typex_FillTCTypeNameCombo(it, ctrlHandle));
        }
        /// <summary>3 at first. A value above 3 is ignored; a negative one is stored and then error 9.</summary>
        public short NumPoints {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_typex_get_NumPoints(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typex_put_NumPoints(it, value));
            }
        }
        /// <summary>The temperature of a deviation point, in the unit that TempScale names. An invalid index is reported to the user only; the call raises no error.</summary>
        public double GetTemperatures(ETCTypeXCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_tc_typex_get_Temperatures(it, (int)index, out result));
            return result;
        }
        /// <summary>The temperature of a deviation point, in the unit that TempScale names. An invalid index is reported to the user only; the call raises no error.</summary>
        public void SetTemperatures(ETCTypeXCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_tc_typex_put_Temperatures(it, (int)index, value));
        }
        /// <summary>A DC coefficient. Error 0x800401F5 for any other index.</summary>
        public double GetCoefficients(ETCTypeXCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_tc_typex_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A DC coefficient. Error 0x800401F5 for any other index.</summary>
        public void SetCoefficients(ETCTypeXCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_tc_typex_put_Coefficients(it, (int)index, value));
        }
        /// <summary>The offset of a deviation point, in the unit that OffsetScale names. An invalid index is reported to the user only; the call raises no error.</summary>
        public double GetOffsets(ETCTypeXCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_tc_typex_get_Offsets(it, (int)index, out result));
            return result;
        }
        /// <summary>The offset of a deviation point, in the unit that OffsetScale names. An invalid index is reported to the user only; the call raises no error.</summary>
        public void SetOffsets(ETCTypeXCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_tc_typex_put_Offsets(it, (int)index, value));
        }
        /// <summary>How the dialog shows temperatures. Never a change.</summary>
        public string TempFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_typex_get_TempFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_typex_put_TempFormat(it, valueText.Value));
            }
        }
        /// <summary>How the dialog shows DC coefficients. Never a change.</summary>
        public string ValueFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_typex_get_ValueFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_typex_put_ValueFormat(it, valueText.Value));
            }
        }
        /// <summary>How the dialog shows offsets. Never a change.</summary>
        public string OffsetFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_typex_get_OffsetFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_typex_put_OffsetFormat(it, valueText.Value));
            }
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_tc_typex_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The name of a type, such as "K". -2: "TC Type " and the name of the current one.</summary>
        public string GetName(int tc = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_tc_typex_GetName(it, tc, out result));
            return result.Take();
        }
        /// <summary>Fills a list with the counts that can be chosen, each with its number as item data.</summary>
        public void FillPointsCombo(ListControl ctrl) {
            var it = NativeHandle;
            var ctrlHandle = QuorObject.HandleOf(ctrl);
            QuorError.Raise(Native.quor_tc_typex_FillPointsCombo(it, ctrlHandle));
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_tc_typex_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_tc_typex_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_tc_typex_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_tc_typex_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>CQuorTCTypePoly</summary>
    public sealed partial class CQuorTCTypePoly : QuorObject {
        internal CQuorTCTypePoly(ulong handle) : base(handle) { }
        public CQuorTCTypePoly(Platform platform = null) : base(Create(platform)) { }
        static ulong Create(Platform platform) {
            var platformHandle = QuorObject.HandleOf(platform);
            ulong result;
            QuorError.Raise(Native.quor_tc_typepoly_create(platformHandle, out result));
            return result;
        }
        /// <summary>Whether dialogs may change values; True at first.</summary>
        public bool AllowEdit {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_typepoly_get_AllowEdit(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typepoly_put_AllowEdit(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>Sets the host's registry, which may be none.</summary>
        public void SetRegistry(ref Registry vData) {
            var it = NativeHandle;
            var vDataHandle = QuorObject.HandleOf(vData);
            int code;
            vDataHandle = QuorObject.Lend(vDataHandle); code = Native.quor_tc_typepoly_SetRegistry(it, ref vDataHandle);
            vData = (Registry)QuorObject.GiveBack(vData, vDataHandle);
            QuorError.Raise(code);
        }
        /// <summary>The registry that was set; none at first.</summary>
        public Registry Registry {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_tc_typepoly_get_Registry(it, out result));
                return (Registry)QuorObject.Of(result);
            }
        }
        /// <summary>Whether a value has changed since the host last cleared the flag. Saving does not clear it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_typepoly_get_Changed(it, out result));
                return result != 0;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typepoly_put_Changed(it, QuorObject.Flag(value)));
            }
        }
        /// <summary>The folder in which file dialogs start; empty at first.</summary>
        public string FilePath {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_typepoly_get_FilePath(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_typepoly_put_FilePath(it, valueText.Value));
            }
        }
        /// <summary>4 at first. A negative value is stored and then error 9.</summary>
        public short NumCoefficients {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_tc_typepoly_get_NumCoefficients(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typepoly_put_NumCoefficients(it, value));
            }
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public double GetCoefficients(ETCPolynomialCoefficients index) {
            var it = NativeHandle;
            double result;
            QuorError.Raise(Native.quor_tc_typepoly_get_Coefficients(it, (int)index, out result));
            return result;
        }
        /// <summary>A coefficient, in the unit that the enumeration of its index gives. Error 0x800401F5 for an invalid index.</summary>
        public void SetCoefficients(ETCPolynomialCoefficients index, double value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_tc_typepoly_put_Coefficients(it, (int)index, value));
        }
        /// <summary>How the dialog shows all coefficients. Never a change.</summary>
        public string ValueFormat {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_tc_typepoly_get_ValueFormat(it, out result));
                return result.Take();
            }
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_tc_typepoly_put_ValueFormat(it, valueText.Value));
            }
        }
        /// <summary>The standard thermocouple type. Any value is stored.</summary>
        public ETCType TCType {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_tc_typepoly_get_TCType(it, out result));
                return (ETCType)result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_tc_typepoly_put_TCType(it, (int)value));
            }
        }
        /// <summary>The name of a thermocouple type, such as "K". -2: of the current one.</summary>
        public string GetTCTypeName(int tc = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_tc_typepoly_GetTCTypeName(it, tc, out result));
            return result.Take();
        }
        /// <summary>Fills a list with the types that have names, each with its value as item data.</summary>
        public void FillTCTypeNameCombo(ListControl ctrl) {
            var it = NativeHandle;
            var ctrlHandle = QuorObject.HandleOf(ctrl);
            QuorError.Raise(Native.quor_tc_typepoly_FillTCTypeNameCombo(it, ctrlHandle));
        }
        /// <summary>Shows the settings dialog. False if the user cancelled, or if it failed, which was reported to the user.</summary>
        public bool Edit() {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_tc_typepoly_Edit(it, out result));
            return result != 0;
        }
        /// <summary>The name of a type, such as "K". -2: "TC Type " and the name of the current one.</summary>
        public string GetName(int tc = -2) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_tc_typepoly_GetName(it, tc, out result));
            return result.Take();
        }
        /// <summary>Reads the settings file Filename, or the one that the user chooses. False if the user cancelled.</summary>
        public bool OpenFile(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_tc_typepoly_OpenFile(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Asks for a file and writes a settings file. False if the user cancelled.</summary>
        public bool SaveFileAs(int hwnd, ref string filename) {
            var it = NativeHandle;
            Text filenameOut;
            string filenameNew;
            short result;
            int code;
            using (var filenameText = new TextIn(filename)) { code = Native.quor_tc_typepoly_SaveFileAs(it, hwnd, filenameText.Value, out filenameOut, out result); }
            filenameNew = filenameOut.Take();
            QuorError.Raise(code);
            filename = filenameNew;
            return result != 0;
        }
        /// <summary>Writes the record into the section secname of INIFile; if that is none, of the file fname, which is not used otherwise. A failure is reported to the user only, by show_message of the platform; unlike Write of ProbeFile, the call raises no error.</summary>
        public void WriteToFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_tc_typepoly_WriteToFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
        }
        /// <summary>Reads the record from where WriteToFile writes it. True if every key was found; otherwise the user is informed.</summary>
        public bool ReadFromFile(ref INIFile iniFile, string fname, string secname) {
            var it = NativeHandle;
            var iniFileHandle = QuorObject.HandleOf(iniFile);
            short result;
            int code;
            using (var fnameText = new TextIn(fname)) using (var secnameText = new TextIn(secname)) { iniFileHandle = QuorObject.Lend(iniFileHandle); code = Native.quor_tc_typepoly_ReadFromFile(it, ref iniFileHandle, fnameText.Value, secnameText.Value, out result); }
            iniFile = (INIFile)QuorObject.GiveBack(iniFile, iniFileHandle);
            QuorError.Raise(code);
            return result != 0;
        }
    }

    /// <summary>An INI file: the built-in store, or one of a host (quor_inifile_from_host).</summary>
    public sealed partial class INIFile : QuorObject {
        internal INIFile(ulong handle) : base(handle) { }
        public INIFile() : base(Create()) { }
        static ulong Create() {
            ulong result;
            QuorError.Raise(Native.quor_inifile_create(out result));
            return result;
        }
        /// <summary>The file that the object is bound to. Setting it touches no file.</summary>
        public string FileName {
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_inifile_put_FileName(it, valueText.Value));
            }
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_inifile_get_FileName(it, out result));
                return result.Take();
            }
        }
        /// <summary>The section that reads and writes use.</summary>
        public string Section {
            set {
                var it = NativeHandle;
                using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_inifile_put_Section(it, valueText.Value));
            }
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_inifile_get_Section(it, out result));
                return result.Take();
            }
        }
        /// <summary>True if the key was found with a value of that type, which Value then is.</summary>
        public bool ReadBoolean(string key, ref bool value) {
            var it = NativeHandle;
            short valueNative = QuorObject.Flag(value);
            short result;
            int code;
            using (var keyText = new TextIn(key)) { code = Native.quor_inifile_ReadBoolean(it, keyText.Value, ref valueNative, out result); }
            value = valueNative != 0;
            QuorError.Raise(code);
            return result != 0;
        }
        /// <summary>True if the key was found with a value of that type, which Value then is.</summary>
        public bool ReadDouble(string key, ref double value) {
            var it = NativeHandle;
            double valueNative = value;
            short result;
            int code;
            using (var keyText = new TextIn(key)) { code = Native.quor_inifile_ReadDouble(it, keyText.Value, ref valueNative, out result); }
            value = valueNative;
            QuorError.Raise(code);
            return result != 0;
        }
        /// <summary>True if the key was found with a value of that type, which Value then is.</summary>
        public bool ReadInteger(string key, ref short value) {
            var it = NativeHandle;
            short valueNative = value;
            short result;
            int code;
            using (var keyText = new TextIn(key)) { code = Native.quor_inifile_ReadInteger(it, keyText.Value, ref valueNative, out result); }
            value = valueNative;
            QuorError.Raise(code);
            return result != 0;
        }
        /// <summary>True if the key was found; Value is then its text.</summary>
        public bool ReadString(string key, ref string value) {
            var it = NativeHandle;
            Text valueOut;
            string valueNew;
            short result;
            int code;
            using (var keyText = new TextIn(key)) using (var valueText = new TextIn(value)) { code = Native.quor_inifile_ReadString(it, keyText.Value, valueText.Value, out valueOut, out result); }
            valueNew = valueOut.Take();
            QuorError.Raise(code);
            value = valueNew;
            return result != 0;
        }
        /// <summary>Writes a value under a key.</summary>
        public void WriteBoolean(string key, bool value) {
            var it = NativeHandle;
            using (var keyText = new TextIn(key)) QuorError.Raise(Native.quor_inifile_WriteBoolean(it, keyText.Value, QuorObject.Flag(value)));
        }
        /// <summary>Writes a value under a key, followed by Comment in the file.</summary>
        public void WriteDouble(string key, double value, string comment = "") {
            var it = NativeHandle;
            using (var keyText = new TextIn(key)) using (var commentText = new TextIn(comment)) QuorError.Raise(Native.quor_inifile_WriteDouble(it, keyText.Value, value, commentText.Value));
        }
        /// <summary>Writes a value under a key, followed by Comment in the file.</summary>
        public void WriteInteger(string key, short value, string comment = "") {
            var it = NativeHandle;
            using (var keyText = new TextIn(key)) using (var commentText = new TextIn(comment)) QuorError.Raise(Native.quor_inifile_WriteInteger(it, keyText.Value, value, commentText.Value));
        }
        /// <summary>Writes a value under a key.</summary>
        public void WriteString(string key, string value) {
            var it = NativeHandle;
            using (var keyText = new TextIn(key)) using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_inifile_WriteString(it, keyText.Value, valueText.Value));
        }
        /// <summary>Opens a bracket: what is written in it becomes durable with the outermost Release.</summary>
        public void Hold() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_inifile_Hold(it));
        }
        /// <summary>Closes a bracket that Hold has opened.</summary>
        public void Release() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_inifile_Release(it));
        }
        /// <summary>Closes a bracket instead of Release: nothing written since the outermost Hold is saved.</summary>
        public void Abandon() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_inifile_Abandon(it));
        }
    }

    /// <summary>A registry: the built-in one, in a file of the application, or one of a host (quor_registry_from_host). Without a folder the built-in one is in the user's configuration folder.</summary>
    public sealed partial class Registry : QuorObject {
        internal Registry(ulong handle) : base(handle) { }
        public Registry(string application, string folder = "") : base(Create(application, folder)) { }
        static ulong Create(string application, string folder) {
            ulong result;
            using (var applicationText = new TextIn(application)) using (var folderText = new TextIn(folder)) QuorError.Raise(Native.quor_registry_create(applicationText.Value, folderText.Value, out result));
            return result;
        }
        /// <summary>True if the value was found; Value is then its text.</summary>
        public bool ReadValue(string section, string name, ref string value) {
            var it = NativeHandle;
            Text valueOut;
            string valueNew;
            short result;
            int code;
            using (var sectionText = new TextIn(section)) using (var nameText = new TextIn(name)) using (var valueText = new TextIn(value)) { code = Native.quor_registry_ReadValue(it, sectionText.Value, nameText.Value, valueText.Value, out valueOut, out result); }
            valueNew = valueOut.Take();
            QuorError.Raise(code);
            value = valueNew;
            return result != 0;
        }
        /// <summary>Stores a value for later runs.</summary>
        public void WriteValue(string section, string name, string value) {
            var it = NativeHandle;
            using (var sectionText = new TextIn(section)) using (var nameText = new TextIn(name)) using (var valueText = new TextIn(value)) QuorError.Raise(Native.quor_registry_WriteValue(it, sectionText.Value, nameText.Value, valueText.Value));
        }
    }

    /// <summary>A list of a host (quor_list_control_from_host).</summary>
    public sealed partial class ListControl : QuorObject {
        internal ListControl(ulong handle) : base(handle) { }
        /// <summary>Removes all items.</summary>
        public void Clear() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_list_control_Clear(it));
        }
        /// <summary>Adds an item at the end.</summary>
        public void AddItem(string item) {
            var it = NativeHandle;
            using (var itemText = new TextIn(item)) QuorError.Raise(Native.quor_list_control_AddItem(it, itemText.Value));
        }
        /// <summary>The index, from 0, of the item that was added last.</summary>
        public int NewIndex {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_list_control_get_NewIndex(it, out result));
                return result;
            }
        }
        /// <summary>The number of an item.</summary>
        public void SetItemData(int index, int value) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_list_control_put_ItemData(it, index, value));
        }
    }

    /// <summary>The platform of a host (quor_platform_from_host), which is passed to the objects that the host creates.</summary>
    public sealed partial class Platform : QuorObject {
        internal Platform(ulong handle) : base(handle) { }
    }

    /// <summary>A running dialog, for the host that shows it: what it contains, and what the user does. The host calls Activate once its window is shown, and after that one member for each action of the user. Typing into a box is Focus, KeyPress for each key, and EditText with the new text; EditText alone sets a whole text. The buttons OK, Cancel and Help are cmdOKCancelHelp(0), (1) and (2); coefficients are txtCoefficients(0), (1) and so on; Controls and Name give the others.</summary>
    public sealed partial class Dialog : QuorObject {
        internal Dialog(ulong handle) : base(handle) { }
        /// <summary>The name in the code: "frmCVDSettings", "txtCoefficients(2)".</summary>
        public string Name {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_dialog_get_Name(it, out result));
                return result.Take();
            }
        }
        /// <summary>The title of the window.</summary>
        public string Title {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_dialog_get_Title(it, out result));
                return result.Take();
            }
        }
        /// <summary>The context number of the dialog's help topic.</summary>
        public int HelpContext {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_dialog_get_HelpContext(it, out result));
                return result;
            }
        }
        /// <summary>How many controls there are.</summary>
        public int ControlCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_dialog_get_ControlCount(it, out result));
                return result;
            }
        }
        /// <summary>A control, in tab order, from 0. The frames and labels are among them.</summary>
        public Control GetControls(int index) {
            var it = NativeHandle;
            ulong result;
            QuorError.Raise(Native.quor_dialog_get_Controls(it, index, out result));
            return (Control)QuorObject.Of(result);
        }
        /// <summary>The control with that name; none if there is none.</summary>
        public Control FindControl(string name) {
            var it = NativeHandle;
            ulong result;
            using (var nameText = new TextIn(name)) QuorError.Raise(Native.quor_dialog_FindControl(it, nameText.Value, out result));
            return (Control)QuorObject.Of(result);
        }
        /// <summary>How many frames and button groups there are side by side.</summary>
        public int ColumnCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_dialog_get_ColumnCount(it, out result));
                return result;
            }
        }
        /// <summary>A frame or button group, from left to right, from 0.</summary>
        public Control GetColumns(int index) {
            var it = NativeHandle;
            ulong result;
            QuorError.Raise(Native.quor_dialog_get_Columns(it, index, out result));
            return (Control)QuorObject.Of(result);
        }
        /// <summary>The button that the Escape key presses; none if there is none.</summary>
        public Control CancelButton {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_dialog_get_CancelButton(it, out result));
                return (Control)QuorObject.Of(result);
            }
        }
        /// <summary>The handle of the window while it is shown; 0 otherwise. The host that shows the window sets it.</summary>
        public int WindowHandle {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_dialog_get_WindowHandle(it, out result));
                return result;
            }
            set {
                var it = NativeHandle;
                QuorError.Raise(Native.quor_dialog_put_WindowHandle(it, value));
            }
        }
        /// <summary>Whether the position of the window is known.</summary>
        public bool HasPlace {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_dialog_get_HasPlace(it, out result));
                return result != 0;
            }
        }
        /// <summary>The position of the window, in units of the host; 0 if it is not known.</summary>
        public int Left {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_dialog_get_Left(it, out result));
                return result;
            }
        }
        /// <summary>The position of the window, in units of the host; 0 if it is not known.</summary>
        public int Top {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_dialog_get_Top(it, out result));
                return result;
            }
        }
        /// <summary>Sets the position of the window.</summary>
        public void SetPlace(int left, int top) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_dialog_SetPlace(it, left, top));
        }
        /// <summary>False once the dialog was closed: run_dialog must return.</summary>
        public bool IsOpen {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_dialog_get_IsOpen(it, out result));
                return result != 0;
            }
        }
        /// <summary>The control that has the focus; none before the first one has received it.</summary>
        public Control ActiveControl {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_dialog_get_ActiveControl(it, out result));
                return (Control)QuorObject.Of(result);
            }
        }
        /// <summary>The window has become the active one. Call it once the window is shown.</summary>
        public void Activate() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_dialog_Activate(it));
        }
        /// <summary>A push button was pressed.</summary>
        public void Click(Control button) {
            var it = NativeHandle;
            var buttonHandle = QuorObject.HandleOf(button);
            QuorError.Raise(Native.quor_dialog_Click(it, buttonHandle));
        }
        /// <summary>An item of a list was chosen.</summary>
        public void Choose(Control list, int index) {
            var it = NativeHandle;
            var listHandle = QuorObject.HandleOf(list);
            QuorError.Raise(Native.quor_dialog_Choose(it, listHandle, index));
        }
        /// <summary>A tab was chosen.</summary>
        public void SelectTab(Control tabs, int index) {
            var it = NativeHandle;
            var tabsHandle = QuorObject.HandleOf(tabs);
            QuorError.Raise(Native.quor_dialog_SelectTab(it, tabsHandle, index));
        }
        /// <summary>The user moved the focus to a control.</summary>
        public void Focus(Control control) {
            var it = NativeHandle;
            var controlHandle = QuorObject.HandleOf(control);
            QuorError.Raise(Native.quor_dialog_Focus(it, controlHandle));
        }
        /// <summary>The Tab key was pressed, with Shift if Backwards.</summary>
        public void PressTab(bool backwards = false) {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_dialog_PressTab(it, QuorObject.Flag(backwards)));
        }
        /// <summary>A key was pressed in the box that has the focus. Returns the key to use instead, or 0 for none.</summary>
        public short KeyPress(short keyAscii) {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_dialog_KeyPress(it, keyAscii, out result));
            return result;
        }
        /// <summary>The user has changed the text or the selection of a box; positions in characters (code points).</summary>
        public void EditText(Control box, string text, int selStart, int selLength) {
            var it = NativeHandle;
            var boxHandle = QuorObject.HandleOf(box);
            using (var textText = new TextIn(text)) QuorError.Raise(Native.quor_dialog_EditText(it, boxHandle, textText.Value, selStart, selLength));
        }
        /// <summary>The Escape key was pressed.</summary>
        public void Escape() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_dialog_Escape(it));
        }
        /// <summary>The user closed the window by its frame.</summary>
        public void Close() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_dialog_Close(it));
        }
        /// <summary>Text was pasted into a box or dropped on it. It may also fill the following boxes.</summary>
        public void Paste(Control box, string text) {
            var it = NativeHandle;
            var boxHandle = QuorObject.HandleOf(box);
            using (var textText = new TextIn(text)) QuorError.Raise(Native.quor_dialog_Paste(it, boxHandle, textText.Value));
        }
        /// <summary>The F1 key was pressed.</summary>
        public void Help() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_dialog_Help(it));
        }
        /// <summary>The button that the F1 key presses; none if there is none.</summary>
        public Control HelpButton {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_dialog_get_HelpButton(it, out result));
                return (Control)QuorObject.Of(result);
            }
        }
        /// <summary>The box whose advice should be shown; none if there is no advice.</summary>
        public Control AdvisedBox {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_dialog_get_AdvisedBox(it, out result));
                return (Control)QuorObject.Of(result);
            }
        }
    }

    /// <summary>A control of a running dialog. A member that its kind does not have is error 438.</summary>
    public sealed partial class Control : QuorObject {
        internal Control(ulong handle) : base(handle) { }
        /// <summary>The name in the code: "frmCVDSettings", "txtCoefficients(2)".</summary>
        public string Name {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_control_get_Name(it, out result));
                return result.Take();
            }
        }
        /// <summary>The kind of the control.</summary>
        public EControlKind Kind {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_control_get_Kind(it, out result));
                return (EControlKind)result;
            }
        }
        /// <summary>The text on the control. "&amp;" precedes the access key: "&amp;OK".</summary>
        public string Caption {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_control_get_Caption(it, out result));
                return result.Take();
            }
        }
        /// <summary>Whether the control is enabled.</summary>
        public bool Enabled {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_control_get_Enabled(it, out result));
                return result != 0;
            }
        }
        /// <summary>Whether the control is visible itself; it may nevertheless be in a hidden frame: IsShown.</summary>
        public bool Visible {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_control_get_Visible(it, out result));
                return result != 0;
            }
        }
        /// <summary>Whether the control and the frames around it are visible.</summary>
        public bool IsShown {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_control_get_IsShown(it, out result));
                return result != 0;
            }
        }
        /// <summary>Whether the user can act on it.</summary>
        public bool IsUsable {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_control_get_IsUsable(it, out result));
                return result != 0;
            }
        }
        /// <summary>The frame around it; none if it is directly in the dialog.</summary>
        public Control Parent {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_control_get_Parent(it, out result));
                return (Control)QuorObject.Of(result);
            }
        }
        /// <summary>The text of a text box.</summary>
        public string Text {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_control_get_Text(it, out result));
                return result.Take();
            }
        }
        /// <summary>Where the selection of a text box begins, in characters (code points).</summary>
        public int SelStart {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_control_get_SelStart(it, out result));
                return result;
            }
        }
        /// <summary>How long the selection of a text box is, in characters (code points).</summary>
        public int SelLength {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_control_get_SelLength(it, out result));
                return result;
            }
        }
        /// <summary>How many items a list has.</summary>
        public int ListCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_control_get_ListCount(it, out result));
                return result;
            }
        }
        /// <summary>The text of an item, from 0.</summary>
        public string GetList(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_control_get_List(it, index, out result));
            return result.Take();
        }
        /// <summary>The number of an item.</summary>
        public int GetItemData(int index) {
            var it = NativeHandle;
            int result;
            QuorError.Raise(Native.quor_control_get_ItemData(it, index, out result));
            return result;
        }
        /// <summary>The selected item of a list, from 0; -1 for none.</summary>
        public int ListIndex {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_control_get_ListIndex(it, out result));
                return result;
            }
        }
        /// <summary>How many rows a frame has.</summary>
        public int RowCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_control_get_RowCount(it, out result));
                return result;
            }
        }
        /// <summary>How many cells a row has; rows count from 0.</summary>
        public int GetRowLength(int row) {
            var it = NativeHandle;
            int result;
            QuorError.Raise(Native.quor_control_get_RowLength(it, row, out result));
            return result;
        }
        /// <summary>The control in a cell of a row, both from 0; none in an empty cell.</summary>
        public Control GetRowControls(int row, int place) {
            var it = NativeHandle;
            ulong result;
            QuorError.Raise(Native.quor_control_get_RowControls(it, row, place, out result));
            return (Control)QuorObject.Of(result);
        }
        /// <summary>How many tabs a strip has, including removed ones.</summary>
        public int TabCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_control_get_TabCount(it, out result));
                return result;
            }
        }
        /// <summary>The caption of a tab, from 0.</summary>
        public string GetTabCaption(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_control_get_TabCaption(it, index, out result));
            return result.Take();
        }
        /// <summary>False for a tab that was removed.</summary>
        public bool GetTabPresent(int index) {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_control_get_TabPresent(it, index, out result));
            return result != 0;
        }
        /// <summary>The selected tab, from 0.</summary>
        public int SelectedTab {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_control_get_SelectedTab(it, out result));
                return result;
            }
        }
        /// <summary>What the user should know about the text of a box before it is stored; usually empty.</summary>
        public string Advice {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_control_get_Advice(it, out result));
                return result.Take();
            }
        }
    }

    /// <summary>The probes of a host's file, or the one of a stand-alone settings file. A file that does not exist is error 53; one that may be new has no probes, and the first write creates it. What is written is durable when the call returns, and every call that writes holds the inter-process lock and works on the current file. All reads see the same text, the one that was loaded first or saved last, until Reload. Between Hold and Release nothing is written: Release does everything together, or, if one call fails, nothing, and raises the error of that call. A Source that such a call reads must exist until then. An error of a probe is 75 or the number of its cause; ErrorCode says which one it is.</summary>
    public sealed partial class ProbeFile : QuorObject {
        internal ProbeFile(ulong handle) : base(handle) { }
        public ProbeFile(string path, bool mayBeNew = false) : base(Create(path, mayBeNew)) { }
        static ulong Create(string path, bool mayBeNew) {
            ulong result;
            using (var pathText = new TextIn(path)) QuorError.Raise(Native.quor_probe_file_create(pathText.Value, QuorObject.Flag(mayBeNew), out result));
            return result;
        }
        /// <summary>The path with which the object was created.</summary>
        public string Path {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_probe_file_get_Path(it, out result));
                return result.Take();
            }
        }
        /// <summary>Whether a write would be refused because the user has no permission to write the file or its folder.</summary>
        public bool IsReadOnly {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_probe_file_get_IsReadOnly(it, out result));
                return result != 0;
            }
        }
        /// <summary>How many probes there are.</summary>
        public int ProbeCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_probe_file_get_ProbeCount(it, out result));
                return result;
            }
        }
        /// <summary>The section of a probe, in the order of the file, from 0.</summary>
        public string GetProbeSection(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ProbeSection(it, index, out result));
            return result.Take();
        }
        /// <summary>The line of the header of a probe's section, from 1.</summary>
        public int GetProbeLine(int index) {
            var it = NativeHandle;
            int result;
            QuorError.Raise(Native.quor_probe_file_get_ProbeLine(it, index, out result));
            return result;
        }
        /// <summary>The conversion type of a probe, CONV_NONE if HasType is False. It may be a code that is not a type.</summary>
        public EQuorConversionType GetProbeType(int index) {
            var it = NativeHandle;
            int result;
            QuorError.Raise(Native.quor_probe_file_get_ProbeType(it, index, out result));
            return (EQuorConversionType)result;
        }
        /// <summary>Whether the record of a probe has a type that can be read. False for a stand-alone one.</summary>
        public bool GetHasType(int index) {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_probe_file_get_HasType(it, index, out result));
            return result != 0;
        }
        /// <summary>Whether the section itself has the settings: the probe of a settings file.</summary>
        public bool GetIsStandAlone(int index) {
            var it = NativeHandle;
            short result;
            QuorError.Raise(Native.quor_probe_file_get_IsStandAlone(it, index, out result));
            return result != 0;
        }
        /// <summary>The name of a probe's conversion; empty where its type cannot be read.</summary>
        public string GetConversionName(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ConversionName(it, index, out result));
            return result.Take();
        }
        /// <summary>The index of the probe in a section, ignoring the case of ASCII letters; -1 if there is none.</summary>
        public int FindProbe(string section) {
            var it = NativeHandle;
            int result;
            using (var sectionText = new TextIn(section)) QuorError.Raise(Native.quor_probe_file_FindProbe(it, sectionText.Value, out result));
            return result;
        }
        /// <summary>Reads a probe into a conversion, which receives its type. False if something was missing, for which it has the defaults: see ProblemCount.</summary>
        public bool Read(string section, CQuorConversion conversion) {
            var it = NativeHandle;
            var conversionHandle = QuorObject.HandleOf(conversion);
            short result;
            using (var sectionText = new TextIn(section)) QuorError.Raise(Native.quor_probe_file_Read(it, sectionText.Value, conversionHandle, out result));
            return result != 0;
        }
        /// <summary>The numbers of all probes at once.</summary>
        public ProbeTable ReadAll() {
            var it = NativeHandle;
            ulong result;
            QuorError.Raise(Native.quor_probe_file_ReadAll(it, out result));
            return (ProbeTable)QuorObject.Of(result);
        }
        /// <summary>Finds everything that is wrong with the file and its probes. Returns the number of problems.</summary>
        public int Check() {
            var it = NativeHandle;
            int result;
            QuorError.Raise(Native.quor_probe_file_Check(it, out result));
            return result;
        }
        /// <summary>How many problems the last Read or Check has found. They are kept until the next call that is not a get. The index of a problem counts from 0.</summary>
        public int ProblemCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_probe_file_get_ProblemCount(it, out result));
                return result;
            }
        }
        /// <summary>What is wrong.</summary>
        public EProbeProblem GetProblemKind(int index) {
            var it = NativeHandle;
            int result;
            QuorError.Raise(Native.quor_probe_file_get_ProblemKind(it, index, out result));
            return (EProbeProblem)result;
        }
        /// <summary>The line of a problem, from 1; 0 for a file beside it.</summary>
        public int GetProblemLine(int index) {
            var it = NativeHandle;
            int result;
            QuorError.Raise(Native.quor_probe_file_get_ProblemLine(it, index, out result));
            return result;
        }
        /// <summary>The section of a problem; empty if it has no name.</summary>
        public string GetProblemSection(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ProblemSection(it, index, out result));
            return result.Take();
        }
        /// <summary>The key of a problem; empty if it does not concern a single key.</summary>
        public string GetProblemKey(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ProblemKey(it, index, out result));
            return result.Take();
        }
        /// <summary>What is wrong, for people, without the place.</summary>
        public string GetProblemText(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ProblemText(it, index, out result));
            return result.Take();
        }
        /// <summary>How many messages of the library the last Read has collected instead of showing them. Their index counts from 0.</summary>
        public int MessageCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_probe_file_get_MessageCount(it, out result));
                return result;
            }
        }
        /// <summary>A message of the last Read, on one line.</summary>
        public string GetMessages(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_Messages(it, index, out result));
            return result.Take();
        }
        /// <summary>Writes a probe into a section, replacing the one there or as a new one: only the lines of values that differ change.</summary>
        public void Write(string section, CQuorConversion conversion) {
            var it = NativeHandle;
            var conversionHandle = QuorObject.HandleOf(conversion);
            using (var sectionText = new TextIn(section)) QuorError.Raise(Native.quor_probe_file_Write(it, sectionText.Value, conversionHandle));
        }
        /// <summary>Writes the values of a probe that have changed since this object has read them into the conversion, or has written them from it. What other programs have written elsewhere is kept, in later calls too. False if they have changed the same values: there are conflicts, and nothing is written. Error 5 for a conversion that this object has neither read nor written; error 75 (INCOMPLETE) if its settings had refused the record, whose keys are the problems; Write replaces it.</summary>
        public bool WriteChanges(string section, CQuorConversion conversion) {
            var it = NativeHandle;
            var conversionHandle = QuorObject.HandleOf(conversion);
            short result;
            using (var sectionText = new TextIn(section)) QuorError.Raise(Native.quor_probe_file_WriteChanges(it, sectionText.Value, conversionHandle, out result));
            return result != 0;
        }
        /// <summary>How many values other programs have changed too, as found by the last WriteChanges, RequireUnchanged or Release. The index of a conflict counts from 0.</summary>
        public int ConflictCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_probe_file_get_ConflictCount(it, out result));
                return result;
            }
        }
        /// <summary>The section of such a value.</summary>
        public string GetConflictSection(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ConflictSection(it, index, out result));
            return result.Take();
        }
        /// <summary>The key of such a value; empty if the whole probe is concerned (RequireUnchanged).</summary>
        public string GetConflictKey(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ConflictKey(it, index, out result));
            return result.Take();
        }
        /// <summary>The value that was read; empty for none.</summary>
        public string GetConflictRead(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ConflictRead(it, index, out result));
            return result.Take();
        }
        /// <summary>The value that the file has now; empty for none.</summary>
        public string GetConflictTheirs(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ConflictTheirs(it, index, out result));
            return result.Take();
        }
        /// <summary>The value that should have been written.</summary>
        public string GetConflictOurs(int index) {
            var it = NativeHandle;
            Text result;
            QuorError.Raise(Native.quor_probe_file_get_ConflictOurs(it, index, out result));
            return result.Take();
        }
        /// <summary>Renames a probe and its settings sections.</summary>
        public void Rename(string section, string name) {
            var it = NativeHandle;
            using (var sectionText = new TextIn(section)) using (var nameText = new TextIn(name)) QuorError.Raise(Native.quor_probe_file_Rename(it, sectionText.Value, nameText.Value));
        }
        /// <summary>Removes a probe and its settings sections. Comments that a blank line separates from it stay.</summary>
        public void Remove(string section) {
            var it = NativeHandle;
            using (var sectionText = new TextIn(section)) QuorError.Raise(Native.quor_probe_file_Remove(it, sectionText.Value));
        }
        /// <summary>Copies the values of a probe into another section, which is new or has a probe of the same type.</summary>
        public void Copy(string section, string toSection) {
            var it = NativeHandle;
            using (var sectionText = new TextIn(section)) using (var toSectionText = new TextIn(toSection)) QuorError.Raise(Native.quor_probe_file_Copy(it, sectionText.Value, toSectionText.Value));
        }
        /// <summary>The same from another file, as it was loaded.</summary>
        public void CopyFrom(ProbeFile source, string section, string toSection) {
            var it = NativeHandle;
            var sourceHandle = QuorObject.HandleOf(source);
            using (var sectionText = new TextIn(section)) using (var toSectionText = new TextIn(toSection)) QuorError.Raise(Native.quor_probe_file_CopyFrom(it, sourceHandle, sectionText.Value, toSectionText.Value));
        }
        /// <summary>Opens a bracket: what is written in it becomes durable with the outermost Release.</summary>
        public void Hold() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_probe_file_Hold(it));
        }
        /// <summary>Closes a bracket that Hold has opened.</summary>
        public void Release() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_probe_file_Release(it));
        }
        /// <summary>Closes a bracket instead of Release: nothing written since the outermost Hold is saved.</summary>
        public void Abandon() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_probe_file_Abandon(it));
        }
        /// <summary>Replaces another file with the text of this one as it was last loaded or saved.</summary>
        public void SaveAs(string path) {
            var it = NativeHandle;
            using (var pathText = new TextIn(path)) QuorError.Raise(Native.quor_probe_file_SaveAs(it, pathText.Value));
        }
        /// <summary>Whether another program has changed the file since it was loaded or saved, or has removed it.</summary>
        public bool Changed {
            get {
                var it = NativeHandle;
                short result;
                QuorError.Raise(Native.quor_probe_file_get_Changed(it, out result));
                return result != 0;
            }
        }
        /// <summary>Loads the current file.</summary>
        public void Reload() {
            var it = NativeHandle;
            QuorError.Raise(Native.quor_probe_file_Reload(it));
        }
        /// <summary>The store of the file, for its other sections.</summary>
        public INIFile Store {
            get {
                var it = NativeHandle;
                ulong result;
                QuorError.Raise(Native.quor_probe_file_get_Store(it, out result));
                return (INIFile)QuorObject.Of(result);
            }
        }
        /// <summary>Why the last call failed; 0 if it did not, or if the error does not concern a probe.</summary>
        public EProbeFileError ErrorCode {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_probe_file_get_ErrorCode(it, out result));
                return (EProbeFileError)result;
            }
        }
        /// <summary>What else the error concerns: another probe or section, or a type; usually empty.</summary>
        public string ErrorOther {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_probe_file_get_ErrorOther(it, out result));
                return result.Take();
            }
        }
        /// <summary>Whether WriteChanges would write anything; for a conversion that this object has neither read nor written, whether it has another type or other values than the probe, as Read would give it.</summary>
        public bool Differs(string section, CQuorConversion conversion) {
            var it = NativeHandle;
            var conversionHandle = QuorObject.HandleOf(conversion);
            short result;
            using (var sectionText = new TextIn(section)) QuorError.Raise(Native.quor_probe_file_Differs(it, sectionText.Value, conversionHandle, out result));
            return result != 0;
        }
        /// <summary>Error 75 if the file has the probe with other values, or other lines that nothing reads, than this object has read into the conversion or, if it has not read it from there, than it had when it was loaded, reloaded or last written through this object (not by a call that failed, nor through Store); also if there was no such probe and now is, or the reverse. Between Hold and Release it is Release that looks and raises this, so that a Write or Remove overwrites nothing that another program has saved meanwhile. ConflictSection is then the probe.</summary>
        public void RequireUnchanged(string section, CQuorConversion conversion) {
            var it = NativeHandle;
            var conversionHandle = QuorObject.HandleOf(conversion);
            using (var sectionText = new TextIn(section)) QuorError.Raise(Native.quor_probe_file_RequireUnchanged(it, sectionText.Value, conversionHandle));
        }
    }

    /// <summary>The numbers of all probes of a file in one array each, for hosts in languages with slow calls, as they were when ReadAll made it. The values of probe i begin where those of probe i - 1 end.</summary>
    public sealed partial class ProbeTable : QuorObject {
        internal ProbeTable(ulong handle) : base(handle) { }
        /// <summary>How many probes there are.</summary>
        public int ProbeCount {
            get {
                var it = NativeHandle;
                int result;
                QuorError.Raise(Native.quor_probe_table_get_ProbeCount(it, out result));
                return result;
            }
        }
        /// <summary>The sections of the probes, each followed by a line feed (10).</summary>
        public string Sections {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_probe_table_get_Sections(it, out result));
                return result.Take();
            }
        }
        /// <summary>The conversion type of each probe; CONV_NONE if it cannot be read.</summary>
        public int[] Types {
            get {
                var it = NativeHandle;
                Array result;
                QuorError.Raise(Native.quor_probe_table_get_Types(it, out result));
                return result.Int32s();
            }
        }
        /// <summary>How many problems and messages there are with each probe; -1 for one that cannot be read.</summary>
        public int[] ProblemCounts {
            get {
                var it = NativeHandle;
                Array result;
                QuorError.Raise(Native.quor_probe_table_get_ProblemCounts(it, out result));
                return result.Int32s();
            }
        }
        /// <summary>The different lists of keys, with tabs between the keys, each list followed by a line feed (10).</summary>
        public string KeyLists {
            get {
                var it = NativeHandle;
                Text result;
                QuorError.Raise(Native.quor_probe_table_get_KeyLists(it, out result));
                return result.Take();
            }
        }
        /// <summary>Which list, from 0, names the values of each probe.</summary>
        public int[] KeyListOf {
            get {
                var it = NativeHandle;
                Array result;
                QuorError.Raise(Native.quor_probe_table_get_KeyListOf(it, out result));
                return result.Int32s();
            }
        }
        /// <summary>The index after the last value of each probe, where those of the next one begin.</summary>
        public int[] ValueEnds {
            get {
                var it = NativeHandle;
                Array result;
                QuorError.Raise(Native.quor_probe_table_get_ValueEnds(it, out result));
                return result.Int32s();
            }
        }
        /// <summary>The values of all probes; NaN where a value is missing or cannot be read, everywhere in a record that is refused as a whole. Booleans are 1 and 0; texts, such as units, are not included.</summary>
        public double[] Values {
            get {
                var it = NativeHandle;
                Array result;
                QuorError.Raise(Native.quor_probe_table_get_Values(it, out result));
                return result.Doubles();
            }
        }
    }

    static class Native {
#if QUOR_LINUX
        const string Library = "libquor.so.1"; // what a system without the development files has
#else
        const string Library = "quor"; // quor.dll, libquor.so
#endif
        const CallingConvention Convention = CallingConvention.Cdecl;

        [StructLayout(LayoutKind.Sequential)]
        public struct ErrorView {
            public int Number, HelpContext;
            public Text Source, Description, HelpFile;
        }

        [StructLayout(LayoutKind.Sequential)]
        public struct MessageView {
            public Text Text, Title, HelpFile;
            public int HelpContext, Icon;
        }

        [UnmanagedFunctionPointer(Convention)]
        public delegate void Destroyed(IntPtr user);
        [UnmanagedFunctionPointer(Convention)]
        public delegate int RunDialog(IntPtr user, ulong dialog);
        [UnmanagedFunctionPointer(Convention)]
        public delegate int ShowMessage(IntPtr user, ref MessageView message);

        /// The library reads as many fields as the size says: those at the end may be left out.
        [StructLayout(LayoutKind.Sequential)]
        public struct PlatformFunctions {
            public UIntPtr Size;
            public Destroyed Destroyed;
            public IntPtr CreateIniFile;
            public RunDialog RunDialog;
            public ShowMessage ShowMessage;
        }

        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_last_error(out ErrorView error);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_set_error(int number, Text source, Text description, Text helpFile, int helpContext);
        [DllImport(Library, CallingConvention = Convention)] public static extern void quor_text_free(ref Text text);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_add_ref(ulong handle);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_release(ulong handle);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_handle_count(out int count);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_class_of(ulong handle, out IntPtr name);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_platform_from_host(ref PlatformFunctions functions, IntPtr user, out ulong platform);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_create(ulong p0, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_get_HelpFile(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_put_HelpFile(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_get_Settings(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_get_ConversionType(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_put_ConversionType(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_ConversionName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_conversion_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_get_HighRange(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_get_LowRange(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_get_RTPW(ulong it, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_put_RTPW(ulong it, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_get_RTPWFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_put_RTPWFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_ShowCoefRange(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_ShowCoefRange(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_AllowChangeRange(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_AllowChangeRange(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_RangeEnabled(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_RangeEnabled(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_RangeName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_Range(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_Range(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_MaxRange(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_MaxRange(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_MinRange(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_MinRange(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_get_ValueFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_put_ValueFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_FillRangeCombo(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_low_range_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_ShowCoefRange(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_ShowCoefRange(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_AllowChangeRange(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_AllowChangeRange(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_RangeEnabled(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_RangeEnabled(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_RangeName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_Range(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_Range(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_MaxRange(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_MaxRange(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_MinRange(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_MinRange(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_get_ValueFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_put_ValueFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_FillRangeCombo(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_its90_high_range_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_ScaleEnabled(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_put_ScaleEnabled(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_IPTS68Scale(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_put_IPTS68Scale(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_IPTS68ScaleName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_get_ValueFormat(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_put_ValueFormat(ulong it, int p0, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_FillScaleCombo(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_ipts68_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_put_NumCoefficients(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_get_UsePolynomial(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_put_UsePolynomial(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_get_ValueFormat(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_put_ValueFormat(ulong it, int p0, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_MaxCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_cvd_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_create(ulong p0, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_put_NumCoefficients(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_get_ValueFormat(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_put_ValueFormat(ulong it, int p0, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_MaxCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_pt100_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_get_ValueFormat(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_put_ValueFormat(ulong it, int p0, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_htprt_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_get_RTPW(ulong it, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_put_RTPW(ulong it, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_get_RTPWFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_put_RTPWFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_wt90_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_get_ConvType(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_put_ConvType(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_ConvName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_get_ValueFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_put_ValueFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_thermistor_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_Order(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_put_Order(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_MinOrder(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_MaxOrder(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_put_ValueFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_ValueFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_put_CoefficientLabelPrefix(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_polynomial_get_CoefficientLabelPrefix(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_mV25CFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_mV25CFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_mV25C(ulong it, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_mV25C(ulong it, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_ShowmV25C(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_ShowmV25C(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_NumCoefficients(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_get_ValueFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_put_ValueFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_polynomial_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_NumPoints(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_NumPoints(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_Temperatures(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_Temperatures(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_Voltages(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_Voltages(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_TempFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_TempFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_VoltageFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_VoltageFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_TempScale(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_TempScale(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_get_VoltageScale(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_put_VoltageScale(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_GetName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_FillPointsCombo(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_table_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_ShowDCCoefs(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_ShowDCCoefs(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_TempScale(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_TempScale(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_OffsetScale(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_OffsetScale(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_TCType(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_TCType(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_GetTCTypeName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_FillTCTypeNameCombo(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_NumPoints(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_NumPoints(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_Temperatures(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_Temperatures(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_Offsets(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_Offsets(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_TempFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_TempFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_ValueFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_ValueFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_get_OffsetFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_put_OffsetFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_GetName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_FillPointsCombo(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typex_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_create(ulong p0, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_get_AllowEdit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_put_AllowEdit(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_SetRegistry(ulong it, ref ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_get_Registry(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_put_Changed(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_get_FilePath(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_put_FilePath(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_get_NumCoefficients(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_put_NumCoefficients(ulong it, short value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_get_Coefficients(ulong it, int p0, out double result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_put_Coefficients(ulong it, int p0, double value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_get_ValueFormat(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_put_ValueFormat(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_get_TCType(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_put_TCType(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_GetTCTypeName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_FillTCTypeNameCombo(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_Edit(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_GetName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_OpenFile(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_SaveFileAs(ulong it, int p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_WriteToFile(ulong it, ref ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_tc_typepoly_ReadFromFile(ulong it, ref ulong p0, Text p1, Text p2, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_create(out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_put_FileName(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_get_FileName(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_put_Section(ulong it, Text value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_get_Section(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_ReadBoolean(ulong it, Text p0, ref short p1, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_ReadDouble(ulong it, Text p0, ref double p1, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_ReadInteger(ulong it, Text p0, ref short p1, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_ReadString(ulong it, Text p0, Text p1, out Text p1Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_WriteBoolean(ulong it, Text p0, short p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_WriteDouble(ulong it, Text p0, double p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_WriteInteger(ulong it, Text p0, short p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_WriteString(ulong it, Text p0, Text p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_Hold(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_Release(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_inifile_Abandon(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_registry_create(Text p0, Text p1, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_registry_ReadValue(ulong it, Text p0, Text p1, Text p2, out Text p2Out, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_registry_WriteValue(ulong it, Text p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_list_control_Clear(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_list_control_AddItem(ulong it, Text p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_list_control_get_NewIndex(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_list_control_put_ItemData(ulong it, int p0, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_Name(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_Title(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_HelpContext(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_ControlCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_Controls(ulong it, int p0, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_FindControl(ulong it, Text p0, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_ColumnCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_Columns(ulong it, int p0, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_CancelButton(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_WindowHandle(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_put_WindowHandle(ulong it, int value);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_HasPlace(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_Left(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_Top(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_SetPlace(ulong it, int p0, int p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_IsOpen(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_ActiveControl(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_Activate(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_Click(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_Choose(ulong it, ulong p0, int p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_SelectTab(ulong it, ulong p0, int p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_Focus(ulong it, ulong p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_PressTab(ulong it, short p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_KeyPress(ulong it, short p0, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_EditText(ulong it, ulong p0, Text p1, int p2, int p3);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_Escape(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_Close(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_Paste(ulong it, ulong p0, Text p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_Help(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_HelpButton(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_dialog_get_AdvisedBox(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_Name(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_Kind(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_Caption(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_Enabled(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_Visible(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_IsShown(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_IsUsable(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_Parent(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_Text(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_SelStart(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_SelLength(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_ListCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_List(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_ItemData(ulong it, int p0, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_ListIndex(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_RowCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_RowLength(ulong it, int p0, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_RowControls(ulong it, int p0, int p1, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_TabCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_TabCaption(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_TabPresent(ulong it, int p0, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_SelectedTab(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_control_get_Advice(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_create(Text p0, short p1, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_Path(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_IsReadOnly(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProbeCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProbeSection(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProbeLine(ulong it, int p0, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProbeType(ulong it, int p0, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_HasType(ulong it, int p0, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_IsStandAlone(ulong it, int p0, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ConversionName(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_FindProbe(ulong it, Text p0, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Read(ulong it, Text p0, ulong p1, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_ReadAll(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Check(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProblemCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProblemKind(ulong it, int p0, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProblemLine(ulong it, int p0, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProblemSection(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProblemKey(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ProblemText(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_MessageCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_Messages(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Write(ulong it, Text p0, ulong p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_WriteChanges(ulong it, Text p0, ulong p1, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ConflictCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ConflictSection(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ConflictKey(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ConflictRead(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ConflictTheirs(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ConflictOurs(ulong it, int p0, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Rename(ulong it, Text p0, Text p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Remove(ulong it, Text p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Copy(ulong it, Text p0, Text p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_CopyFrom(ulong it, ulong p0, Text p1, Text p2);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Hold(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Release(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Abandon(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_SaveAs(ulong it, Text p0);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_Changed(ulong it, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Reload(ulong it);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_Store(ulong it, out ulong result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ErrorCode(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_get_ErrorOther(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_Differs(ulong it, Text p0, ulong p1, out short result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_file_RequireUnchanged(ulong it, Text p0, ulong p1);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_table_get_ProbeCount(ulong it, out int result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_table_get_Sections(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_table_get_Types(ulong it, out Array result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_table_get_ProblemCounts(ulong it, out Array result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_table_get_KeyLists(ulong it, out Text result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_table_get_KeyListOf(ulong it, out Array result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_table_get_ValueEnds(ulong it, out Array result);
        [DllImport(Library, CallingConvention = Convention)] public static extern int quor_probe_table_get_Values(ulong it, out Array result);
    }
}

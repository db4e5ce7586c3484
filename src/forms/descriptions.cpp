#include "forms/descriptions.h"

#include "ui/describe.h"
#include "ui/text.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

// The sentences of every window. Order: as the eye meets the controls.
namespace tarnwick::forms {
namespace {

using ui::Description;

constexpr std::string_view oscillator = "Oscillator frequency Fosc in MHz, above 0 to 64";
constexpr std::string_view reload =
    "Instruction cycles that the interrupt routine spends before it writes the preload, 1 to 15";
constexpr std::string_view slideReload = "Sets the instruction cycles of the reload, 1 to 15";
constexpr std::string_view kBaud = "Checked, rates are in KBaud; otherwise in Bd";
constexpr std::string_view commonBaud =
    "Common rates in Bd, 300 to 115200: a choice fills the rate";
constexpr std::string_view baudError =
    "Difference of the rate from the wanted one, in percent of the wanted one";
constexpr std::string_view bestBaud = "Rate of the best match, in Bd or KBaud";
constexpr std::string_view bestError = "Error of the best match in percent";
constexpr std::string_view bestBrgh = "Bit BRGH of the best match: 1 is high speed";
constexpr std::string_view copyRegister =
    "Copies the assignments that enable the serial port and set its rate to the best match";
constexpr std::string_view copyDefine =
    "Copies the PBP lines that set up the hardware serial port for the best match";

constexpr std::array timer{
    Description{"tOSC", oscillator},
    Description{"oType(1)", "A timer of 8 bits, which overflows after 256 counts"},
    Description{"oType(2)", "A timer of 16 bits, which overflows after 65536 counts"},
    Description{"oPrescaller", "Prescaler ratio: instruction cycles to one count, 1 to 256"},
    Description{"tPreLoad",
                "Value for the timer register before each period, 0 to 255 with 8 bits, "
                "0 to 65535 with 16 bits"},
    Description{"scrollpreload", "Sets the preload, 0 to 255 with 8 bits, 0 to 65535 with 16 bits"},
    Description{"tReload", reload},
    Description{"scrollreload", slideReload},
    Description{"tFosc", "Instruction clock in MHz, a quarter of the oscillator frequency"},
    Description{"tTicks", "Duration of one instruction cycle in microseconds"},
    Description{"tResults", "Time from one timer interrupt to the next, in uSec or mSec"},
    Description{"tFreq", "Timer interrupts per second, in Hz or KHz"},
};

constexpr std::string_view matchPrescaler = "Prescaler ratio of each match, one match a line";
constexpr std::string_view matchCalc = "Period or frequency of each match, in the unit chosen";
constexpr std::string_view matchError =
    "Difference of each match from the wanted period, in percent of its own";
constexpr std::string_view leastPrescaler = "Prescaler ratio of the best match, 1 to 256";
constexpr std::string_view leastError = "Error of the best match in percent";

constexpr std::array timerHelper{
    Description{"tOSC", oscillator},
    Description{"tDelay", "Wanted interrupt period or frequency, above 0, in the unit chosen"},
    Description{"omSecuSec(0)", "A period in microseconds, matched to within 5 us"},
    Description{"omSecuSec(1)", "A period in milliseconds, matched to within 5 ms"},
    Description{"omSecuSec(2)", "A frequency in Hz, below 1000, matched to within 2 Hz"},
    Description{"omSecuSec(3)", "A frequency in KHz, from 1 on, matched to within 2 KHz"},
    Description{"tReload", reload},
    Description{"HScroll1", slideReload},
    Description{"tPreload8", "Preload of each match of an 8-bit timer, 1 to 255; 0 is left empty"},
    Description{"tPrescaler8", matchPrescaler},
    Description{"tCalc8", matchCalc},
    Description{"tERR8", matchError},
    Description{"tPreload16",
                "Preload of each match of a 16-bit timer, 1 to 65535; 0 is left empty"},
    Description{"tPrescaler16", matchPrescaler},
    Description{"tCalc16", matchCalc},
    Description{"tERR16", matchError},
    Description{"tfPreload8", "Preload of the best match of an 8-bit timer, 0 to 255"},
    Description{"tfPrescaler8", leastPrescaler},
    Description{"tfERR8", leastError},
    Description{"tfPreload16", "Preload of the best match of a 16-bit timer, 0 to 65535"},
    Description{"tfPrescaler16", leastPrescaler},
    Description{"tfERR16", leastError},
};

constexpr std::string_view timer2Prescaler = "Prescaler ratio of Timer2, one match a line";

constexpr std::array pwm{
    Description{"tOSC", oscillator},
    Description{"tDuty", "Wanted duty cycle in percent of the period, 0 to 100"},
    Description{"scrollduty", "Sets the duty cycle, 0 to 100 percent"},
    Description{"tMinFreq", "Lowest frequency at this oscillator: PR2 = 255, prescaler 1:16"},
    Description{"tMaxFreq", "Highest frequency at this oscillator: PR2 = 1, prescaler 1:1"},
    Description{"tFreq", "Wanted PWM frequency, above 0, in the unit chosen"},
    Description{"oHzKhz(0)", "Frequencies in Hz"},
    Description{"oHzKhz(1)", "Frequencies in KHz"},
    Description{"tCalc", "PWM frequency of each match, in the unit chosen"},
    Description{"tPrescaler", timer2Prescaler},
    Description{"tResolution", "Resolution of the duty cycle in bits, 1 to 10"},
    Description{"trMaxPR2", "Value of the duty register for 100 percent, up to 1024"},
    Description{"trDutyStep", "Duty cycle of one count of the duty register, in percent"},
    Description{"tPrescaler2", timer2Prescaler},
    Description{"tPR2", "Value for the period register PR2, 0 to 255"},
    Description{"tDecimal", "Value for the duty register, 0 to its value for 100 percent"},
    Description{"tCalcDuty", "Duty cycle that the register value gives, in percent"},
};

constexpr std::array usart{
    Description{"fOSC", oscillator},
    Description{"BaudRate", "Wanted baud rate in Bd, or in KBaud where that is checked, above 0"},
    Description{"cKBaud", kBaud},
    Description{"BaudDropList", commonBaud},
    Description{"tSPBRG0", "Value for the register SPBRG with BRGH = 0, 0 to 255"},
    Description{"tCalcBaud0", "Rate with BRGH = 0, in Bd or KBaud"},
    Description{"tERR0", baudError},
    Description{"tSPBRG1", "Value for the register SPBRG with BRGH = 1, 0 to 255"},
    Description{"tCalcBaud1", "Rate with BRGH = 1, in Bd or KBaud"},
    Description{"tERR1", baudError},
    Description{"trERR", bestError},
    Description{"trCalcBaud", bestBaud},
    Description{"trSPBRG", "Value for the register SPBRG of the best match, 0 to 255"},
    Description{"trSPBRGH", bestBrgh},
    Description{"cCopyRegister", copyRegister},
    Description{"CopyClip", copyDefine},
};

constexpr std::string_view highByte = "High byte of the value, for the register SPBRGH, 0 to 255";
constexpr std::string_view lowByte = "Low byte of the value, for the register SPBRG, 0 to 255";

constexpr std::array eusart{
    Description{"fOSC", oscillator},
    Description{"BaudRate", "Wanted baud rate in Bd, or in KBaud where that is checked, above 0"},
    Description{"cKBaud", kBaud},
    Description{"BaudDropList", commonBaud},
    Description{"dropBRG16", "Register and bit that hold BRG16, as the copied text names them"},
    Description{"tSPBRG0", "Value for the register SPBRG with BRG16 = 0, BRGH = 0, 1 to 255"},
    Description{"tCalcBaud0", "Rate with BRG16 = 0, BRGH = 0, in Bd or KBaud"},
    Description{"tERR0", baudError},
    Description{"tSPBRG1", "Value for the register SPBRG with BRG16 = 0, BRGH = 1, 1 to 255"},
    Description{"tCalcBaud1", "Rate with BRG16 = 0, BRGH = 1, in Bd or KBaud"},
    Description{"tERR1", baudError},
    Description{"trERR", "Error of the best match with BRG16 = 0, in percent"},
    Description{"trCalcBaud", "Rate of the best match with BRG16 = 0, in Bd or KBaud"},
    Description{"trSPBRG", "Value for the register SPBRG with BRG16 = 0, 1 to 255"},
    Description{"trSPBRGH", bestBrgh},
    Description{"tSPBRG16_0(1)", highByte},
    Description{"tSPBRG16_0(0)", lowByte},
    Description{"tCalcBaud16_0", "Rate with BRG16 = 1, BRGH = 0, in Bd or KBaud"},
    Description{"tERR16_0", baudError},
    Description{"tSPBRG16_1(1)", highByte},
    Description{"tSPBRG16_1(0)", lowByte},
    Description{"tCalcBaud16_1", "Rate with BRG16 = 1, BRGH = 1, in Bd or KBaud"},
    Description{"tERR16_1", baudError},
    Description{"trERR16", "Error of the best match with BRG16 = 1, in percent"},
    Description{"trCalcBaud16", "Rate of the best match with BRG16 = 1, in Bd or KBaud"},
    Description{"trSPBRG16(0)", lowByte},
    Description{"trSPBRG16(1)", highByte},
    Description{"trSPBRGH16", bestBrgh},
    Description{"tfERR", bestError},
    Description{"tfCalcBaud", bestBaud},
    Description{"tfSPBRG", "Value for the register SPBRG, the low byte with BRG16 = 1, 0 to 255"},
    Description{"TSPBRGH",
                "High byte of the value, for the register SPBRGH, 0 to 255; empty with BRG16 = 0"},
    Description{"tfBRGH", bestBrgh},
    Description{"tfBRG16", "Bit BRG16 of the best match: 1 joins SPBRGH and SPBRG to 16 bits"},
    Description{"cCopyRegister", copyRegister},
    Description{"CopyClip", copyDefine},
};

constexpr std::array serial2{
    Description{"tBaud", "Wanted baud rate in Bd, or in KBaud where that is checked, above 0"},
    Description{"cKBaud", kBaud},
    Description{"BaudDropList", commonBaud},
    Description{"oOutput(1)", "The output drives both levels"},
    Description{"oOutput(2)", "The output is open, for several senders on one line"},
    Description{"oConversion(1)", "True levels, for a line with a driver"},
    Description{"oConversion(2)", "Inverted levels, for a line without a driver"},
    Description{"oParity(1)", "No parity bit"},
    Description{"oParity(2)", "Even parity bit"},
    Description{"oParity(0)", "Odd parity bit, which takes one PBP DEFINE more"},
    Description{"tMode", "Mode number for SERIN2 and SEROUT2, 1 to 65534; empty: no mode"},
    Description{"cCopyClip", "Copies the PBP DEFINE line that makes the parity odd"},
};

constexpr std::array adc{
    Description{"tOSC", oscillator},
    Description{
        "tImpedance",
        "Impedance of the signal source in Ohm, or in K Ohm where that is checked, above 0"},
    Description{"cKohm", "Checked, the impedance is in K Ohm; otherwise in Ohm"},
    Description{"oADCBits(1)", "A result of 10 bits, 0 to 1023"},
    Description{"oADCBits(0)", "A result of 8 bits, 0 to 255"},
    Description{"tADClock",
                "Source of the conversion clock and its bits ADCS; Frc is the RC clock"},
    Description{"tMinTad", "Automatic acquisition time ACQT in conversion clocks Tad, 0 to 64"},
    Description{"tMinTaq", "Time that the input needs to settle before a conversion, in uSec"},
    Description{"cCopyClip", "Copies the PBP DEFINE lines for resolution, clock and sampling time"},
};

constexpr std::array comparator{
    Description{"tVdd", "Supply voltage Vdd in Volt, above 0 to 5.25"},
    Description{"oVrefRange(1)", "The low range, in steps of Vdd / 24 from 0"},
    Description{"oVrefRange(2)", "The high range, in steps of Vdd / 32 from Vdd / 4"},
    Description{"tLabelLowRange", "Lowest and highest voltage of the low range"},
    Description{"tLabelHighRange", "Lowest and highest voltage of the high range"},
    Description{"Text1", "The four bits CVR that choose the voltage, binary"},
    Description{"tVref", "Reference voltage of each value of CVR, in Volt"},
};

constexpr std::array customCharacter{
    Description{"PortData", "Port that the data lines of the LCD are wired to"},
    Description{"BitData", "First bit of the data lines, 0 or 4"},
    Description{"PortRS", "Port of the register select line RS"},
    Description{"BitRS", "Bit of the register select line RS, 0 to 7"},
    Description{"PortE", "Port of the enable line E"},
    Description{"BitE", "Bit of the enable line E, 0 to 7"},
    Description{"PortRW", "Port of the read/write line R/W; empty: the line is not used"},
    Description{"BitRW", "Bit of the read/write line R/W, 0 to 7"},
    Description{"Bits", "Width of the data bus in bits, 4 or 8"},
    Description{"Lines", "Number of lines of the LCD, 2 or 4"},
    Description{"tCommandUS", "Time that a command takes the LCD, in microseconds, 0 to 9999"},
    Description{"tDataUS", "Time that a data byte takes the LCD, in microseconds, 0 to 999"},
    Description{"tLeft", "Text before the character on the LCD"},
    Description{"Preview", "The character as the LCD shows it"},
    Description{"tRight", "Text after the character on the LCD"},
    Description{"uTleft", "Text to show before the character, up to 2 characters"},
    Description{"uTright", "Text to show after the character, up to 2 characters"},
    Description{"oChar", "Chooses the character to draw, by its code 0 to 7"},
    Description{"tChar", "The eight rows of the character, top row first, as PBP constants"},
    Description{"tName", "Comment for the copied line of the character, up to 20 characters"},
    Description{"tConstant", "Name of the PBP constant for the code, up to 20 characters"},
    Description{"chk",
                "One pixel of the character: a click toggles it, a drag or Shift with an arrow key "
                "paints, a right click offers more"},
    Description{"cInvertAll", "Turns every pixel of the grid over (in the grid Ctrl+I)"},
    Description{"cClear",
                "Turns every pixel off and deletes the selected character; Ctrl+Z brings it back"},
    Description{"cDeleteChar",
                "Deletes the selected character with its comment and alias; Ctrl+Z brings it back"},
    Description{
        "cDeletedAll",
        "Deletes all eight characters with their comments and aliases; Ctrl+Z brings them back"},
    Description{"cCopyClip", "Copies the LCDOUT and CON lines of the characters in use"},
    Description{"lLine", "Byte of the row of pixels beside it, $00 to $1F"},
    Description{"cInclude", "Checked, the DEFINE lines of the LCD settings are copied too"},
};

struct WindowDescriptions {
  std::string_view window;
  std::span<const Description> descriptions;
};

constexpr auto windows = std::to_array<WindowDescriptions>({
    {"fTimer", timer},
    {"fTimerHelper", timerHelper},
    {"fUSART", usart},
    {"fEUSART", eusart},
    {"fSerinSerout2", serial2},
    {"fPWM", pwm},
    {"fMinADTime", adc},
    {"fComparator", comparator},
    {"fCustomCharacter", customCharacter},
});

}  // namespace

void describe(ui::Window& window) {
  const std::string name = ui::fromQt(window.objectName());
  for (const auto& [described, descriptions] : windows)
    if (described == name) ui::describe(window, descriptions);
}

}  // namespace tarnwick::forms

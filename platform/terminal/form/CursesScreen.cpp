#include "platform/terminal/form/CursesScreen.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include "platform/terminal/form/CharacterLocale.h"
#include "platform/terminal/form/CursesSignals.h"
#include "platform/terminal/form/ResizeSignal.h"
#include "platform/terminal/form/ScreenText.h"
#include "platform/terminal/form/TerminalAbility.h"

// Its names meddle with what is included behind it.
#define NCURSES_NOMACROS 1
#include <curses.h>

namespace wxbrg {

namespace {

/// In milliseconds, how long the rest of a key may take that begins with Esc: enough for a slow line, too
/// short to be felt.
constexpr int escapeDelay = 100;

constexpr wint_t controlC = 3;
constexpr wint_t backspace = 8;
constexpr wint_t controlL = 12;
constexpr wint_t escape = 27;
constexpr wint_t deleteCode = 127;

constexpr short focusColors = 1;
constexpr short frameColors = 2;

struct BoxPiece {
    char32_t character;
    const cchar_t* piece;
};

/// A piece of a box in the look that the terminal has for it; null for any other character.
const cchar_t* BoxPieceOf(char32_t character) {
    // The names stand for entries of a table that curses fills when it takes the terminal.
    const std::array<BoxPiece, 10> pieces{{{U'─', WACS_HLINE},
                                           {U'│', WACS_VLINE},
                                           {U'┌', WACS_ULCORNER},
                                           {U'┐', WACS_URCORNER},
                                           {U'└', WACS_LLCORNER},
                                           {U'┘', WACS_LRCORNER},
                                           {U'├', WACS_LTEE},
                                           {U'┤', WACS_RTEE},
                                           {U'┬', WACS_TTEE},
                                           {U'┴', WACS_BTEE}}};
    for (const BoxPiece& piece : pieces)
        if (piece.character == character) return piece.piece;
    return nullptr;
}

/// How a style looks: attributes and a pair of colours.
struct Look {
    attr_t attributes = A_NORMAL;
    short colors = 0;
};

Look LookOf(ScreenStyle style, bool colored) {
    switch (style) {
        case ScreenStyle::title:
        case ScreenStyle::strong:
            return {A_BOLD};
        case ScreenStyle::focus:
            return colored ? Look{A_BOLD, focusColors} : Look{A_REVERSE};
        case ScreenStyle::frame:
            return {A_NORMAL, colored ? frameColors : short{0}};
        case ScreenStyle::field:
            return {A_UNDERLINE};
        case ScreenStyle::disabled:
            return {A_DIM};
        case ScreenStyle::plain:
        case ScreenStyle::hint:
            break;
    }
    return {};
}

/// Whether the terminal has colours, and the user has not asked for none.
bool WantsColors() {
    const char* const unwanted = std::getenv("NO_COLOR");
    return has_colors() && (unwanted == nullptr || *unwanted == '\0');
}

struct KeyMeaning {
    wint_t code;
    KeyKind kind;
};

constexpr std::array functionKeys{KeyMeaning{KEY_BTAB, KeyKind::backTab},
                                  KeyMeaning{KEY_LEFT, KeyKind::left},
                                  KeyMeaning{KEY_RIGHT, KeyKind::right},
                                  KeyMeaning{KEY_UP, KeyKind::up},
                                  KeyMeaning{KEY_DOWN, KeyKind::down},
                                  KeyMeaning{KEY_HOME, KeyKind::home},
                                  KeyMeaning{KEY_END, KeyKind::end},
                                  KeyMeaning{KEY_PPAGE, KeyKind::previousPage},
                                  KeyMeaning{KEY_NPAGE, KeyKind::nextPage},
                                  KeyMeaning{KEY_ENTER, KeyKind::enter},
                                  KeyMeaning{KEY_BACKSPACE, KeyKind::backspace},
                                  KeyMeaning{KEY_DC, KeyKind::erase},
                                  KeyMeaning{KEY_F(1), KeyKind::help}};

constexpr std::array controlKeys{KeyMeaning{L'\t', KeyKind::tab},
                                 KeyMeaning{L'\r', KeyKind::enter},
                                 KeyMeaning{L'\n', KeyKind::enter},
                                 KeyMeaning{backspace, KeyKind::backspace},
                                 KeyMeaning{deleteCode, KeyKind::backspace},
                                 KeyMeaning{controlC, KeyKind::escape},
                                 KeyMeaning{controlL, KeyKind::resize}};

template <std::size_t size>
std::optional<ScreenKey> MeaningOf(const std::array<KeyMeaning, size>& keys, wint_t code) {
    for (const KeyMeaning& key : keys)
        if (key.code == code) return ScreenKey{key.kind};
    return std::nullopt;
}

class CursesScreen : public Screen {
  public:
    explicit CursesScreen(ScreenSize size) : size_(size) {}
    ~CursesScreen() override {
        CursesScreen::Leave();
        if (screen_ != nullptr) delscreen(screen_);
    }
    CursesScreen(const CursesScreen&) = delete;
    CursesScreen& operator=(const CursesScreen&) = delete;

    ScreenSize Size() const override { return size_; }
    bool Enter() override;
    void Leave() override;
    void Show(const ScreenPicture& picture) override;
    ScreenKey ReadKey() override;
    void Beep() override { beep(); }

  private:
    bool Start();
    static void SetUpKeys();
    void SetUpColors();
    /// Takes the size that the window has now.
    void FollowWindow();
    void Put(const ScreenSpan& span) const;
    /// A key that is there within `wait` milliseconds; -1: waits for it as long as it takes.
    static std::optional<ScreenKey> TakeKey(int wait);
    static ScreenKey BehindEscape();

    const CharacterLocale locale_;
    const CursesSignals signals_;
    ScreenSize size_;
    std::optional<ResizeSignal> resized_;  ///< only on the screen
    SCREEN* screen_ = nullptr;
    bool colored_ = false;
};

bool CursesScreen::Enter() {
    std::cout.flush();
    // Curses leaves the signal alone that is taken already.
    resized_.emplace();
    if (screen_ == nullptr && !Start()) {
        resized_.reset();
        return false;
    }
    signals_.EnterScreen();
    FollowWindow();
    clearok(curscr, TRUE);
    return true;
}

bool CursesScreen::Start() {
    screen_ = newterm(nullptr, stdout, stdin);
    if (screen_ == nullptr) return false;
    SetUpKeys();
    SetUpColors();
    return true;
}

void CursesScreen::SetUpKeys() {
    cbreak();
    noecho();
    keypad(stdscr, TRUE);
    if (std::getenv("ESCDELAY") == nullptr) set_escdelay(escapeDelay);
    // What terminals send whose descriptions do not have it.
    define_key("\033[Z", KEY_BTAB);
    define_key("\033[5;5~", KEY_PPAGE);
    define_key("\033[6;5~", KEY_NPAGE);
    // Ctrl-C comes as a key, so that it asks as Esc does.
    termios mode{};
    if (tcgetattr(STDIN_FILENO, &mode) != 0) return;
    mode.c_cc[VINTR] = _POSIX_VDISABLE;
    tcsetattr(STDIN_FILENO, TCSADRAIN, &mode);
    def_prog_mode();
}

void CursesScreen::SetUpColors() {
    colored_ = WantsColors();
    if (!colored_) return;
    start_color();
    use_default_colors();
    init_pair(focusColors, COLOR_WHITE, COLOR_BLUE);
    init_pair(frameColors, COLOR_CYAN, -1);
}

void CursesScreen::Leave() {
    if (!resized_) return;
    endwin();
    signals_.LeaveScreen();
    resized_.reset();
}

void CursesScreen::FollowWindow() {
    winsize window{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &window) == 0 && window.ws_row > 0 && window.ws_col > 0)
        resizeterm(window.ws_row, window.ws_col);
    size_ = {static_cast<std::size_t>(getmaxx(stdscr)), static_cast<std::size_t>(getmaxy(stdscr))};
}

void CursesScreen::Show(const ScreenPicture& picture) {
    erase();
    for (const ScreenSpan& span : picture.spans) Put(span);
    curs_set(picture.cursor ? 1 : 0);
    if (picture.cursor) move(static_cast<int>(picture.cursor->row), static_cast<int>(picture.cursor->column));
    refresh();
}

void CursesScreen::Put(const ScreenSpan& span) const {
    if (span.at.row >= size_.height || span.at.column >= size_.width) return;
    const Look look = LookOf(span.style, colored_);
    attr_set(look.attributes | (span.accessKey ? A_UNDERLINE : A_NORMAL), look.colors, nullptr);
    move(static_cast<int>(span.at.row), static_cast<int>(span.at.column));
    for (const char32_t character : CutToWidth(span.text, size_.width - span.at.column)) {
        if (const cchar_t* const piece = BoxPieceOf(character)) {
            add_wch(piece);
        } else {
            const wchar_t text[] = {static_cast<wchar_t>(character), L'\0'};
            addwstr(text);
        }
    }
}

ScreenKey CursesScreen::ReadKey() {
    for (;;) {
        if (resized_->Take()) {
            FollowWindow();
            return {KeyKind::resize};
        }
        if (const std::optional<ScreenKey> key = TakeKey(0)) return *key;
        std::array<pollfd, 2> sources{{{STDIN_FILENO, POLLIN, 0}, {resized_->Descriptor(), POLLIN, 0}}};
        if (poll(sources.data(), sources.size(), -1) <= 0) continue;
        if (sources[0].revents != 0) return TakeKey(-1).value_or(ScreenKey{KeyKind::endOfInput});
    }
}

std::optional<ScreenKey> CursesScreen::TakeKey(int wait) {
    timeout(wait);
    wint_t code = 0;
    const int result = get_wch(&code);
    if (result == ERR) return std::nullopt;
    if (result == KEY_CODE_YES) return MeaningOf(functionKeys, code).value_or(ScreenKey{});
    if (code == escape) return BehindEscape();
    if (const std::optional<ScreenKey> key = MeaningOf(controlKeys, code)) return key;
    return code < L' ' ? ScreenKey{} : ScreenKey{KeyKind::character, static_cast<char32_t>(code)};
}

ScreenKey CursesScreen::BehindEscape() {
    // With Alt, a terminal sends Esc in front of the character; curses has waited for it.
    const std::optional<ScreenKey> next = TakeKey(0);
    if (!next) return {KeyKind::escape};
    if (next->kind == KeyKind::character) return {KeyKind::access, next->character};
    return next->kind == KeyKind::escape ? *next : ScreenKey{};
}

}  // namespace

std::unique_ptr<Screen> OpenCursesScreen() {
    const std::optional<ScreenSize> size = FullScreenSize();
    return size ? std::make_unique<CursesScreen>(*size) : nullptr;
}

}  // namespace wxbrg

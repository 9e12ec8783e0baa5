#include "app/luckycup.h"
#include "kit/font_list.h"
#include "kit/look.h"
#include "kit/spoken.h"

int main(int argc, char* argv[]) {
    const auto fonts = ReadFontsAhead();
    PrepareLook();
    QApplication app(argc, argv);
    MakeControlsSpeak();
    return Main(app);
}

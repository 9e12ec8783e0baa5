#include "app/luckycup.h"
#include "kit/look.h"
#include "kit/spoken.h"

int main(int argc, char* argv[]) {
    PrepareLook();
    QApplication app(argc, argv);
    ApplyLook();
    MakeControlsSpeak();
    return Main(app);
}

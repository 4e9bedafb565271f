// A plate's file holds anything at all: it is decoded and laid on its field as the panel does it.

#include "tests/fuzz/FuzzFile.h"
#include "ui/panel/PictureView.h"

#include <QColor>
#include <QImage>

using namespace tambrelle;

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
    // A file that is no picture is no news.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QImage plate = QImage::fromData(data, static_cast<int>(size));
    const PictureFrame frame{.size = {268, 140}, .devicePixelRatio = 1, .field = Qt::white};
    const QImage composed = composedPicture(plate, frame);
    fuzz::mustHold(composed.size() == frame.size);
    return 0;
}

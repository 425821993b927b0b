// T-bar: the calibration row. Press to give it the knob, press again to start, move
// the T-bar with [ and ] (its position is in the header) and press at each step; Esc
// abandons the run. The readings come from the gallery's keyboard proxy.
#include "gallerycontext.h"
#include "galleryhost.h"
#include "itempage.h"
#include "pages.h"

#include <lcdwidgets.h>

#include <QCoreApplication>
#include <QPushButton>
#include <QStringList>

using namespace LCD::Widget;

ItemPage* buildTBarPage(GalleryContext&)
{
    auto* page = new ItemPage(QObject::tr("T-bar"));
    page->addSection(QObject::tr("T-bar calibration (press, then press at each step; [ and ] move the T-bar)"));
    auto* row = new TypeItemTBarCalibration(page->list());
    row->setItemTitle(QObject::tr("T-bar calibration"));
    page->addItem(row, 330);

    QObject::connect(row, &TypeItemTBarCalibration::signalTBarCalibrationBegin, page,
                     [page] { emit page->statusMessage(QObject::tr("Calibration started: push the T-bar to the top")); });
    QObject::connect(row->actionButton(), &QPushButton::clicked, page, [page, row] {
        std::vector<int> const v = row->getCalibrationValue();
        if (row->currentStep() > 1) {
            QStringList readings;
            for (int r : v)
                readings << QString::number(r);
            emit page->statusMessage(QObject::tr("Readings: %1").arg(readings.join(QStringLiteral(", "))));
        }
    });
    QObject::connect(row, &TypeItemTBarCalibration::signalTBarCalibrationEnd, page, [page, row] {
        QStringList readings;
        for (int r : row->getCalibrationValue())
            readings << QString::number(r);
        emit page->statusMessage(QObject::tr("Calibrated: %1").arg(readings.join(QStringLiteral(", "))));
    });
    QObject::connect(row, &TypeItemTBarCalibration::signalTBarCalibrationBack, page,
                     [page] { emit page->statusMessage(QObject::tr("Calibration abandoned")); });

    // The picture shows a run at its third step.
    page->screenshotSetup = [page, row] {
        QCoreApplication::processEvents();
        page->activate();
        page->setCurrentIndex(0);
        row->editValue();
        for (int i = 0; i < 3; ++i)
            row->slotBtnClicked();
    };
    page->addStretch();
    return page;
}

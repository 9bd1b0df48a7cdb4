#pragma once

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include <memory>

/// Draws a document on a printer or into a PDF file. A file is drawn in memory and saved when it is complete, so a
/// full or unwritable disk is noticed and an older file survives.
class PrintJob {
public:
    /// Print queues and PDF viewers show the title.
    PrintJob(std::unique_ptr<QPrinter> printer, QString const& title);

    /// Returns the path of the PDF file, empty if the job goes to a printer.
    [[nodiscard]] QString file() const;

    /// Draws a text whose base line starts here, in 1/72 inch from the top left corner of the paper. Does nothing on
    /// pages outside the range chosen in the print dialog, and after a failure.
    void draw(QPointF start, QString const& text);
    void nextPage();

    /// Ends the job. Returns the reason for a failure, or an empty string.
    QString end();

private:
    void begin(QPaintDevice& device);
    [[nodiscard]] bool isPageChosen() const;

    std::unique_ptr<QPrinter> printer_;
    QBuffer document_;
    std::unique_ptr<QPdfWriter> writer_; ///< draws into the document; null for a printer
    QPainter painter_;
    int page_ = 1;          ///< counts the pages that are left out too
    bool hasPages_ = false; ///< each page so far could be started
};

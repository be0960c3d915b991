#pragma once

class QWidget;

/// The contents of the cards on the page Tools; each one works by itself.
namespace ToolCards {

QWidget *qrCode();
QWidget *wordWrap();
QWidget *richString();
QWidget *hitTestMap();
QWidget *drag();
QWidget *inputMarks();
QWidget *runLog();

} // namespace ToolCards

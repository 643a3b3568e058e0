#include "windows/builder.h"

#include "program/program.h"
#include "windows/fieldbinding.h"
#include "windows/plainbindings.h"

namespace tamo {

Builder::Builder(FormWindow& window, Display& display, Program& program, PlanPictures* pictures)
    : window_(window), display_(display), program_(program), pictures_(pictures) {}

Control* Builder::Find(const char* name) {
  return window_.GetForm().Find(QLatin1String(name));
}

QLineEdit* Builder::Field(const char* name, int columns, const QString& saidName) {
  auto* edit = new QLineEdit;
  edit->setObjectName(QLatin1String(name));
  edit->setAccessibleName(saidName);
  if (columns > 0) {
    const int one = edit->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    edit->setFixedWidth(columns * one + 3 * kGrid);
  }
  if (auto* field = Find<TextField>(name)) Bind<LineBinding>(*field, *edit);
  return edit;
}

QPlainTextEdit* Builder::LongField(const char* name, const QString& saidName) {
  auto* edit = new QPlainTextEdit;
  edit->setObjectName(QLatin1String(name));
  edit->setAccessibleName(saidName);
  if (auto* field = Find<TextField>(name)) Bind<TextBinding>(*field, *edit);
  return edit;
}

RowsView* Builder::List(const char* name, const QString& saidName, int columns, int rows) {
  auto* list = Find<OrderedList>(name);
  if (list == nullptr) return nullptr;
  auto* view = new RowsView(*list);
  view->setObjectName(QLatin1String(name));
  view->setAccessibleName(saidName);
  view->wantedColumns = columns;
  view->wantedRows = rows;
  Bind<ListBinding>(*list, *view);
  return view;
}

RowsView* Builder::DropList(const char* name, const char* field) {
  auto* under = dynamic_cast<TextField*>(Find(field));
  Binding* fieldBinding = under == nullptr ? nullptr : display_.Of(*under);
  RowsView* view = List(name, QLatin1String(name), 20, 6);
  if (view == nullptr || fieldBinding == nullptr) return view;
  view->setAccessibleName(fieldBinding->Widget().accessibleName() + QStringLiteral(", choices"));
  auto* binding = static_cast<ListBinding*>(display_.Of(*Find(name)));
  binding->DropFrom(*under, fieldBinding->Widget(), window_);
  return view;
}

RowsView* Builder::PopList(const char* name, const QString& saidName, int columns) {
  RowsView* view = List(name, saidName, columns, 3);
  if (view != nullptr) static_cast<ListBinding*>(display_.Of(*Find(name)))->PopUpIn(window_);
  return view;
}

QPushButton* Builder::PushButton(const char* name) {
  auto* button = new QPushButton;
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  if (auto* control = Find<Button>(name)) Bind<ButtonBinding>(*control, *button);
  return button;
}

QCheckBox* Builder::Check(const char* name) {
  auto* box = new QCheckBox;
  box->setObjectName(QLatin1String(name));
  if (auto* control = Find<CheckBox>(name)) Bind<ButtonBinding>(*control, *box);
  return box;
}

QRadioButton* Builder::Choice(const char* name) {
  auto* choice = new QRadioButton;
  choice->setObjectName(QLatin1String(name));
  if (auto* control = Find<Option>(name)) Bind<ButtonBinding>(*control, *choice);
  return choice;
}

SwatchPatch* Builder::Patch(const char* name) {
  auto* patch = new SwatchPatch(SwatchPatch::Kind::Patch);
  patch->setObjectName(QLatin1String(name));
  if (auto* control = Find<Swatch>(name)) {
    patch->setAccessibleName(control->Caption().isEmpty() ? QString(QLatin1String(name)).mid(1)
                                                          : control->Caption());
    patch->setToolTip(patch->accessibleName());
    Bind<SwatchBinding>(*control, *patch);
  }
  return patch;
}

SwatchPatch* Builder::SampleLine(const char* name) {
  auto* line = new SwatchPatch(SwatchPatch::Kind::Line);
  line->setObjectName(QLatin1String(name));
  line->setAccessibleName(QStringLiteral("Sample line"));
  if (auto* control = Find<Swatch>(name)) Bind<SwatchBinding>(*control, *line);
  return line;
}

QSlider* Builder::Bar(const char* name, const QString& saidName) {
  auto* slider = new QSlider(Qt::Horizontal);
  slider->setObjectName(QLatin1String(name));
  slider->setAccessibleName(saidName);
  slider->setPageStep(1);
  slider->setTickPosition(QSlider::TicksBelow);
  slider->setTickInterval(1);
  if (auto* control = Find<ScrollBar>(name)) Bind<BarBinding>(*control, *slider);
  return slider;
}

BrowserView* Builder::Browser(const char* name, const QString& saidName) {
  auto* control = Find<FileBrowser>(name);
  auto* view = new BrowserView(control == nullptr ? FileBrowser::Kind::File : control->GetKind());
  view->setObjectName(QLatin1String(name));
  view->setAccessibleName(saidName);
  view->Rows().setAccessibleName(saidName);
  if (control != nullptr) Bind<BrowserBinding>(*control, *view, program_.GetFiles().GetDisk());
  return view;
}

QWidget* Builder::Group(const char* name) {
  auto* group = new QWidget;
  group->setObjectName(QLatin1String(name));
  if (auto* frame = Find<Frame>(name)) Bind<FrameBinding>(*frame, *group);
  return group;
}

QFrame* Builder::Panel(const char* name) {
  auto* panel = new QFrame;
  panel->setObjectName(QLatin1String(name));
  panel->setProperty("role", QStringLiteral("panel"));
  if (auto* frame = Find<Frame>(name)) Bind<FrameBinding>(*frame, *panel);
  return panel;
}

QLabel* Builder::LabelFor(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  if (auto* control = Find<Label>(name)) Bind<LabelBinding>(*control, *label);
  return label;
}

QLabel* Builder::Caption(const char* name) {
  QLabel* label = LabelFor(name);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QLabel* Builder::Prompt(const char* name) {
  QLabel* label = LabelFor(name);
  label->setFont(PromptFont());
  label->setProperty("role", QStringLiteral("prompt"));
  label->setWordWrap(true);
  return label;
}

QLabel* Builder::Text(const char* name) {
  return LabelFor(name);
}

QLabel* FixedCaption(const QString& text) {
  auto* label = new QLabel(text);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QLabel* FixedPrompt(const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setFont(PromptFont());
  label->setProperty("role", QStringLiteral("prompt"));
  label->setWordWrap(true);
  return label;
}

QLabel* Section(const QString& text) {
  auto* label = new QLabel(text);
  label->setFont(SectionFont());
  label->setProperty("role", QStringLiteral("section"));
  return label;
}

QFrame* Rule() {
  auto* rule = new QFrame;
  rule->setProperty("role", QStringLiteral("rule"));
  rule->setFixedHeight(1);
  return rule;
}

QWidget* Kept(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

FieldColumn::FieldColumn(QVBoxLayout& into) : grid_(new QGridLayout) {
  into.addLayout(grid_);
  SetUp();
}

FieldColumn::FieldColumn(QWidget& in) : grid_(new QGridLayout(&in)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  SetUp();
}

void FieldColumn::SetUp() {
  grid_->setHorizontalSpacing(kGrid);
  grid_->setVerticalSpacing(kGrid / 2);
  grid_->setColumnStretch(1, 1);
}

void FieldColumn::Add(QLabel* caption, QWidget* field, QLabel* prompt) {
  if (captionWidth > 0) caption->setMinimumWidth(captionWidth);
  caption->setBuddy(field);
  const bool whole = field->minimumWidth() != field->maximumWidth();
  const bool tall = dynamic_cast<QPlainTextEdit*>(field) != nullptr;
  if (tall) caption->setContentsMargins(0, kGrid / 2, 0, 0);
  grid_->addWidget(caption, row_, 0, Qt::AlignRight | (tall ? Qt::AlignTop : Qt::AlignVCenter));
  grid_->addWidget(field, row_, 1, whole ? Qt::Alignment() : Qt::AlignLeft);
  ++row_;
  if (prompt != nullptr) grid_->addWidget(Kept(prompt), row_++, 1);
}

}  // namespace tamo

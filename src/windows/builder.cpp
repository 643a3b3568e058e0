#include "windows/builder.h"

#include "program/program.h"
#include "windows/fieldbinding.h"
#include "windows/figurelabel.h"
#include "windows/plainbindings.h"
#include "windows/roles.h"

namespace tamo {
namespace {

template <class Widget, class... Arguments>
Widget* Named(const char* name, Arguments&&... arguments) {
  auto* widget = new Widget(std::forward<Arguments>(arguments)...);
  widget->setObjectName(QLatin1String(name));
  return widget;
}

// Binds the widget to the control of its name.
template <class ControlKind, class BindingKind, class Widget>
Widget* Bound(Builder& builder, Widget* widget) {
  const QByteArray name = widget->objectName().toLatin1();
  if (auto* control = builder.Find<ControlKind>(name.constData()))
    builder.Bind<BindingKind>(*control, *widget);
  return widget;
}

template <class Layout>
Layout* Flush(Layout* layout, int spacing) {
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(spacing);
  return layout;
}

QLabel* AsCaption(QLabel* label) {
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QLabel* AsPrompt(QLabel* label) {
  label->setFont(PromptFont());
  MakeQuiet(*label);
  label->setWordWrap(true);
  return label;
}

}  // namespace

Builder::Builder(FormWindow& window, Display& display, Program& program, PlanPictures* pictures)
    : window_(window), display_(display), program_(program), pictures_(pictures) {}

Control* Builder::Find(const char* name) {
  return window_.GetForm().Find(QLatin1String(name));
}

QLineEdit* Builder::Field(const char* name, int columns, const QString& accessibleName) {
  auto* edit = Named<QLineEdit>(name);
  edit->setAccessibleName(accessibleName);
  if (columns > 0) {
    const int one = edit->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    edit->setFixedWidth(columns * one + 3 * kGrid);
  }
  return Bound<TextField, LineBinding>(*this, edit);
}

QPlainTextEdit* Builder::LongField(const char* name, const QString& accessibleName) {
  auto* edit = Named<QPlainTextEdit>(name);
  edit->setAccessibleName(accessibleName);
  return Bound<TextField, TextBinding>(*this, edit);
}

RowsView* Builder::List(const char* name, const QString& accessibleName, int columns, int rows) {
  auto* list = Find<OrderedList>(name);
  if (list == nullptr) return nullptr;
  auto* view = new RowsView(*list);
  view->setObjectName(QLatin1String(name));
  view->setAccessibleName(accessibleName);
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

RowsView* Builder::PopList(const char* name, const QString& accessibleName, int columns) {
  RowsView* view = List(name, accessibleName, columns, 3);
  if (view != nullptr) static_cast<ListBinding*>(display_.Of(*Find(name)))->PopUpIn(window_);
  return view;
}

QPushButton* Builder::PushButton(const char* name) {
  auto* button = Named<QPushButton>(name);
  button->setAutoDefault(false);
  return Bound<Button, ButtonBinding>(*this, button);
}

QCheckBox* Builder::Check(const char* name) {
  return Bound<CheckBox, ButtonBinding>(*this, Named<QCheckBox>(name));
}

QRadioButton* Builder::Choice(const char* name) {
  return Bound<Option, ButtonBinding>(*this, Named<QRadioButton>(name));
}

SwatchPatch* Builder::Patch(const char* name) {
  auto* patch = Named<SwatchPatch>(name, SwatchPatch::Kind::Patch);
  if (const auto* control = Find<Swatch>(name)) {
    patch->setAccessibleName(control->Caption().isEmpty() ? QString(QLatin1String(name)).mid(1)
                                                          : control->Caption());
    patch->setToolTip(patch->accessibleName());
  }
  return Bound<Swatch, SwatchBinding>(*this, patch);
}

SwatchPatch* Builder::SampleLine(const char* name) {
  auto* line = Named<SwatchPatch>(name, SwatchPatch::Kind::Line);
  line->setAccessibleName(QStringLiteral("Sample line"));
  return Bound<Swatch, SwatchBinding>(*this, line);
}

QSlider* Builder::Bar(const char* name, const QString& accessibleName) {
  auto* slider = Named<QSlider>(name, Qt::Horizontal);
  slider->setAccessibleName(accessibleName);
  slider->setPageStep(1);
  slider->setTickPosition(QSlider::TicksBelow);
  slider->setTickInterval(1);
  return Bound<ScrollBar, BarBinding>(*this, slider);
}

BrowserView* Builder::Browser(const char* name, const QString& accessibleName) {
  auto* control = Find<FileBrowser>(name);
  auto* view = new BrowserView(control == nullptr ? FileBrowser::Kind::File : control->GetKind());
  view->setObjectName(QLatin1String(name));
  view->setAccessibleName(accessibleName);
  view->Rows().setAccessibleName(accessibleName);
  if (control != nullptr) Bind<BrowserBinding>(*control, *view, program_.GetFiles().GetDisk());
  return view;
}

QWidget* Builder::Group(const char* name) {
  return Bound<Frame, FrameBinding>(*this, Named<QWidget>(name));
}

QFrame* Builder::Panel(const char* name) {
  auto* panel = Named<QFrame>(name);
  GiveRole(*panel, Role::Panel);
  return Bound<Frame, FrameBinding>(*this, panel);
}

QLabel* Builder::LabelFor(const char* name) {
  return Bound<Label, LabelBinding>(*this, Named<QLabel>(name));
}

QLabel* Builder::Caption(const char* name) {
  return AsCaption(LabelFor(name));
}

QLabel* Builder::Prompt(const char* name) {
  return AsPrompt(LabelFor(name));
}

QLabel* Builder::Text(const char* name) {
  return LabelFor(name);
}

QLabel* Builder::Figure(const char* name) {
  return Bound<Label, LabelBinding>(*this, Named<FigureLabel>(name));
}

QLabel* FixedCaption(const QString& text) {
  return AsCaption(new QLabel(text));
}

QLabel* FixedPrompt(const QString& text) {
  auto* label = AsPrompt(new QLabel(text));
  label->setTextFormat(Qt::PlainText);
  return label;
}

QLabel* Section(const QString& text) {
  auto* label = new QLabel(text);
  label->setFont(SectionFont());
  return label;
}

QFrame* Rule() {
  auto* rule = new QFrame;
  GiveRole(*rule, Role::Rule);
  rule->setFixedHeight(1);
  return rule;
}

QWidget* KeepPlaceWhenHidden(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

QVBoxLayout* ColumnIn(QWidget* in, int spacing) {
  return Flush(new QVBoxLayout(in), spacing);
}

QHBoxLayout* RowIn(QWidget* in, int spacing) {
  return Flush(new QHBoxLayout(in), spacing);
}

QHBoxLayout* NewRow(int spacing) {
  auto* row = new QHBoxLayout;
  row->setSpacing(spacing);
  return row;
}

FieldColumn::FieldColumn(QVBoxLayout& into) : grid_(new QGridLayout) {
  into.addLayout(grid_);
  SetSpacing();
}

FieldColumn::FieldColumn(QWidget& in) : grid_(new QGridLayout(&in)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  SetSpacing();
}

void FieldColumn::SetSpacing() {
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
  if (prompt != nullptr) grid_->addWidget(KeepPlaceWhenHidden(prompt), row_++, 1);
}

}  // namespace tamo

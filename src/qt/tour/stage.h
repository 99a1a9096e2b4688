#pragma once

#include <deque>
#include <functional>

#include <QObject>
#include <QString>

class QWidget;

namespace velmora::qt {

/// Plays a script on the running program the way a user would: each step waits until the program is ready for
/// it, then acts on real widgets, which are found by the names that a screen reader speaks. Steps go on
/// inside the waits of dialogs and long commands.
class Stage : public QObject {
  Q_OBJECT

 public:
  /// Pictures go to `folder`, numbered from `firstNumber` on.
  Stage(QString folder, int firstNumber);

  using Ready = std::function<bool()>;
  using Act = std::function<void()>;
  /// The next step of the script. It is skipped when it never gets ready.
  Stage& when(Ready ready, Act act);
  Stage& then(Act act);
  /// A picture of all windows in sight, once they are painted.
  Stage& picture(const QString& name, Ready ready = {});
  /// A picture of what may be gone in a moment.
  Stage& pictureAtOnce(const QString& name, Ready ready);

  /// Starts the script; `onEnd` is called after its last step.
  void play(Act onEnd);
  /// Whether each step was played, and each picture saved.
  bool succeeded() const { return succeeded_; }
  int nextNumber() const { return number_; }

  /// A visible widget by its accessible name in the window in front; nothing when there is none.
  static QWidget* find(const QString& name);
  /// Whether a window with this title is in sight.
  static bool sees(const QString& title);

  /// Presses a button; of a button with a menu opens that.
  static void press(const QString& button);
  /// Presses a button of the message box in front.
  static void answer(const QString& button);
  /// Chooses an entry of a menu, by its text without mnemonic.
  static void choose(const QString& entry);
  /// Clicks a row of a list.
  static void clickRow(const QString& list, int row, Qt::KeyboardModifiers modifiers = {});
  /// Clicks the row of a list that reads like this, as soon as there is one.
  Stage& click(const QString& list, const QString& text);
  /// Clicks a row twice.
  static void doubleClickRow(const QString& list, int row);
  /// Replaces the text of a box key by key.
  static void type(const QString& box, const QString& text);
  /// Types into the box of the dialog in front.
  static void fill(const QString& text);

  /// Takes a row of a list with the mouse. The drag goes on in a loop of its own until `endDrag`.
  static void beginDrag(const QString& list, const QString& text);
  /// Holds what is dragged over the middle of a list; `endDrag` lets go of it there.
  static void dragOver(const QString& list);
  static void endDrag();

 private:
  struct Step {
    Ready ready;
    Act act;
  };
  void tick();
  void save(const QString& name);

  QString folder_;
  int number_;
  std::deque<Step> steps_;
  Act onEnd_;
  int waited_ = 0;  // ticks for the step in front
  bool succeeded_ = true;
};

}  // namespace velmora::qt

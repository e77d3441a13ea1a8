// The baseline of start-up time and memory: a window with one list and one button.
#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  QVBoxLayout layout(&window);
  QListWidget list;
  QPushButton button("Button");
  layout.addWidget(&list);
  layout.addWidget(&button);
  window.resize(730, 480);
  window.show();
  return QApplication::exec();
}

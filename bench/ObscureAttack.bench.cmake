tessaly_bench(ObscureAttack USES core/Imaging)
